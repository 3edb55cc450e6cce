// What passes between a dialog's controls and its values.
#pragma once

struct CDataExchange
{
    bool m_bSaveAndValidate = false; // true: from the controls into the values
};
