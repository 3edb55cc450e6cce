// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CMyComboBox: an edit with the list of what was used before; an editable QComboBox.
#pragma once

#include "common/Export.h"

#include <QComboBox>

/// The list is the owner's to fill, also each time that it drops down. It is as wide as its widest
/// item, and what is typed never enters it by itself.
class ZN_API CMyComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit CMyComboBox(QWidget* parent = nullptr); ///< empty, to be typed into

    void showPopup() override; ///< tells DropsDown before

    /// Puts text where the selection of the edit was when it had the focus last, as if typed.
    void RestoreEditSelection();

Q_SIGNALS:
    void DropsDown(); ///< the list is about to show

protected:
    /// Keeps what is selected for RestoreEditSelection.
    void focusOutEvent(QFocusEvent* event) override;

private:
    void RememberEditSelection();

    int m_selectionStart = 0; // in UTF-16 units
    int m_selectionLength = 0;
    int m_caret = 0;
};
