// SPDX-License-Identifier: GPL-3.0-or-later
// CXMLFile with its protected operations in reach.
#pragma once

#include "settings/XMLFile.h"

class OpenXMLFile : public CXMLFile
{
public:
    OpenXMLFile() = default;
    explicit OpenXMLFile(const QString& path) { SetFilename(path); }

    using CXMLFile::GetBoolAttributeFromXMLFile;
    using CXMLFile::GetBoolFromXMLFile;
    using CXMLFile::GetIntAttributeFromXMLFile;
    using CXMLFile::GetIntFromXMLFile;
    using CXMLFile::GetStringAttributeFromXMLFile;
    using CXMLFile::GetStringFromXMLFile;
    using CXMLFile::SetBoolAttributeToXMLFile;
    using CXMLFile::SetBoolToXMLFile;
    using CXMLFile::SetIntAttributeToXMLFile;
    using CXMLFile::SetIntToXMLFile;
    using CXMLFile::SetStringAttributeToXMLFile;
    using CXMLFile::SetStringToXMLFile;

    pug::xml_node Find(const char16_t* name) const
    {
        return m_document.document().first_element_by_name(name);
    }
};
