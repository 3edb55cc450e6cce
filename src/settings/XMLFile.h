// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CXMLFile: one XML document in memory, and typed settings by section, key and attribute.
/// Knows no setting by name and no window. The GUI thread owns it.
#pragma once

#include "platform/base/Object.h"
#include "settings/Pug.h"

/// The file is read by the first operation that needs it, and again by every later one as long as
/// it cannot be parsed. Nothing is written before Save, and nothing at all of a file that could not
/// be parsed. A section is an element anywhere in the document, a key the first element of that
/// name anywhere below it; whatever is missing reads as "", 0 or false. All typed operations go
/// through the eight string operations, so a derived class redirects every access by overriding
/// these.
class ZN_API CXMLFile : public CObject
{
public:
    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass(); ///< the record of this class

protected:
    /// The value of the key's first child, whatever its kind.
    virtual QString GetStringFromXMLFile(const pug::xml_node& node, const char16_t* key);
    /// The same in a section.
    virtual QString GetStringFromXMLFile(const char16_t* section, const char16_t* key);
    /// As a text or as a CDATA section. Creates a missing key but never a section; false for a
    /// section that is missing or has no children.
    virtual bool SetStringToXMLFile(pug::xml_node& node, const char16_t* key, const QString& value,
                                    bool asText);
    /// The same in a section.
    virtual bool SetStringToXMLFile(const char16_t* section, const char16_t* key,
                                    const QString& value, bool asText);
    /// A null key means the section's own attribute.
    virtual QString GetStringAttributeFromXMLFile(pug::xml_node& node, const char16_t* attribute);
    /// The same in a section.
    virtual QString GetStringAttributeFromXMLFile(const char16_t* section, const char16_t* key,
                                                  const char16_t* attribute);
    /// The first attribute of an element is stored without marking the file as modified, and the
    /// result is whether its value reads as true (1, t, T, y or Y in front): setting it to "0" or
    /// to a colour's name stores it and gives false.
    virtual bool SetStringAttributeToXMLFile(pug::xml_node& node, const char16_t* attribute,
                                             const QString& value);
    /// The same in a section.
    virtual bool SetStringAttributeToXMLFile(const char16_t* section, const char16_t* key,
                                             const char16_t* attribute, const QString& value);

public:
    /// True at once if the document is in memory. False for a file that is missing or not
    /// well-formed. Bytes are read in the system's code page up to the first zero byte; a
    /// byte-order mark is text like any other, before the first element.
    virtual bool Parse();
    /// True with nothing written if nothing was modified; false if the file was never parsed.
    virtual bool Save();
    virtual void Clear(); ///< drops the document; the next access reads the file again
    /// Drops what was modified since the last Save; the next access reads the file again.
    virtual bool Revert();

    /// A document that is in memory stays, and is saved under the new name.
    void SetFilename(const QString& filename) { m_filename = filename; }
    const QString& GetFilename() const { return m_filename; } ///< empty: none yet
    /// For a file of the installation, which is then never written: once the user has a copy under
    /// this path, Parse reads that instead, and the first Save with a change makes it. A copy that
    /// is there and cannot be parsed stays as it is, and Save gives false.
    void SetUserCopy(const QString& path) { m_userCopy = path; }
    const QString& GetUserCopy() const { return m_userCopy; } ///< empty: the file itself is written
    bool GetModified() const { return m_modified; }           ///< since the last Save
    void SetModified(bool modified) { m_modified = modified; } ///< whether Save has to write

protected:
    /// 0 for what is no number.
    int GetIntFromXMLFile(const char16_t* section, const char16_t* key);
    /// The same below a node.
    int GetIntFromXMLFile(const pug::xml_node& node, const char16_t* key);
    bool SetIntToXMLFile(const char16_t* section, const char16_t* key, int value); ///< in decimal
    /// The same below a node.
    bool SetIntToXMLFile(pug::xml_node node, const char16_t* key, int value);
    /// A null key means the section's own attribute.
    int GetIntAttributeFromXMLFile(const char16_t* section, const char16_t* key,
                                   const char16_t* attribute);
    /// The same of a node.
    int GetIntAttributeFromXMLFile(pug::xml_node node, const char16_t* attribute);
    /// In decimal; results as SetStringAttributeToXMLFile.
    bool SetIntAttributeToXMLFile(const char16_t* section, const char16_t* key,
                                  const char16_t* attribute, int value);
    /// The same of a node.
    bool SetIntAttributeToXMLFile(pug::xml_node node, const char16_t* attribute, int value);

    /// A number that is not 0 is true; "yes" is not.
    bool GetBoolFromXMLFile(const char16_t* section, const char16_t* key);
    /// The same below a node.
    bool GetBoolFromXMLFile(const pug::xml_node& node, const char16_t* key);
    bool SetBoolToXMLFile(const char16_t* section, const char16_t* key, bool value); ///< as 1 or 0
    /// The same below a node.
    bool SetBoolToXMLFile(pug::xml_node node, const char16_t* key, bool value);
    /// A null key means the section's own attribute.
    bool GetBoolAttributeFromXMLFile(const char16_t* section, const char16_t* key,
                                     const char16_t* attribute);
    /// The same of a node.
    bool GetBoolAttributeFromXMLFile(pug::xml_node node, const char16_t* attribute);
    /// As 1 or 0; results as SetStringAttributeToXMLFile.
    bool SetBoolAttributeToXMLFile(const char16_t* section, const char16_t* key,
                                   const char16_t* attribute, bool value);
    /// The same of a node.
    bool SetBoolAttributeToXMLFile(pug::xml_node node, const char16_t* attribute, bool value);

    /// The section, if it has children; empty otherwise.
    static pug::xml_node FindSection(const pug::xml_parser& document, const char16_t* section);
    /// The same, or the element of the key below it.
    static pug::xml_node FindTarget(const pug::xml_parser& document, const char16_t* section,
                                    const char16_t* key);
    /// False for a file that is missing or not well-formed.
    static bool ReadDocument(const QString& filename, pug::xml_parser& document);
    /// Replaces the file as a whole; false if it could not be written.
    static bool WriteDocument(const QString& filename, const pug::xml_parser& document);

    QString m_filename;         ///< of the document
    bool m_parsed = false;      ///< it is in memory
    bool m_modified = false;    ///< since the last Save
    pug::xml_parser m_document; ///< empty until it is parsed

private:
    bool SaveUserCopy();

    QString m_userCopy;
    bool m_readsCopy = false; // the document came from the user's copy
};
