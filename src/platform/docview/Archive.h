// SPDX-License-Identifier: GPL-3.0-or-later
// CArchive: the way of a document's contents to or from its file, for Serialize.
#pragma once

#include "platform/system/File.h"

class CArchive
{
public:
    enum Mode
    {
        store,
        load
    };

    CArchive(CFile* file, Mode mode) : m_file(file), m_mode(mode) {}

    bool IsStoring() const { return m_mode == store; }
    bool IsLoading() const { return m_mode == load; }
    CFile* GetFile() const { return m_file; }

private:
    CFile* m_file;
    Mode m_mode;
};
