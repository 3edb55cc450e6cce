// SPDX-License-Identifier: GPL-3.0-or-later
// CXMLFile: one XML document in memory, and typed settings by section, key and attribute.
// Knows no setting by name and no window. The GUI thread owns it.
#pragma once

#include "platform/base/Object.h"
#include "settings/Pug.h"

// The file is read by the first operation that needs it, and again by every later one as long as it
// cannot be parsed. Nothing is written before Save, and nothing at all of a file that could not be
// parsed. A section is an element anywhere in the document, a key the first element of that name
// anywhere below it; whatever is missing reads as "", 0 or false. All typed operations go through
// the eight string operations, so a derived class redirects every access by overriding these.
class ZN_API CXMLFile : public CObject
{
public:
    const CRuntimeClass* GetRuntimeClass() const override { return GetThisClass(); }
    static const CRuntimeClass* GetThisClass();

protected:
    // The value of the key's first child, whatever its kind.
    virtual QString GetStringFromXMLFile(const pug::xml_node& node, const char16_t* key);
    virtual QString GetStringFromXMLFile(const char16_t* section, const char16_t* key);
    // As a text or as a CDATA section. Creates a missing key but never a section; false for a
    // section that is missing or has no children.
    virtual bool SetStringToXMLFile(pug::xml_node& node, const char16_t* key, const QString& value,
                                    bool asText);
    virtual bool SetStringToXMLFile(const char16_t* section, const char16_t* key,
                                    const QString& value, bool asText);
    // A null key means the section's own attribute.
    virtual QString GetStringAttributeFromXMLFile(pug::xml_node& node, const char16_t* attribute);
    virtual QString GetStringAttributeFromXMLFile(const char16_t* section, const char16_t* key,
                                                  const char16_t* attribute);
    // The first attribute of an element is stored without marking the file as modified, and the
    // result is whether its value reads as true (1, t, T, y or Y in front): setting it to "0" or to
    // a colour's name stores it and gives false.
    virtual bool SetStringAttributeToXMLFile(pug::xml_node& node, const char16_t* attribute,
                                             const QString& value);
    virtual bool SetStringAttributeToXMLFile(const char16_t* section, const char16_t* key,
                                             const char16_t* attribute, const QString& value);

public:
    // True at once if the document is in memory. False for a file that is missing or not
    // well-formed. Bytes are read in the system's code page up to the first zero byte; a byte-order
    // mark is text like any other, before the first element.
    virtual bool Parse();
    // True with nothing written if nothing was modified; false if the file was never parsed.
    virtual bool Save();
    virtual void Clear();
    // Drops what was modified since the last Save; the next access reads the file again.
    virtual bool Revert();

    // A document that is in memory stays, and is saved under the new name.
    void SetFilename(const QString& filename) { m_filename = filename; }
    const QString& GetFilename() const { return m_filename; }
    // For a file of the installation, which is then never written: once the user has a copy under
    // this path, Parse reads that instead, and the first Save with a change makes it. A copy that
    // is there and cannot be parsed stays as it is, and Save gives false.
    void SetUserCopy(const QString& path) { m_userCopy = path; }
    const QString& GetUserCopy() const { return m_userCopy; } // empty: the file itself is written
    bool GetModified() const { return m_modified; }
    void SetModified(bool modified) { m_modified = modified; }

protected:
    int GetIntFromXMLFile(const char16_t* section, const char16_t* key);
    int GetIntFromXMLFile(const pug::xml_node& node, const char16_t* key);
    bool SetIntToXMLFile(const char16_t* section, const char16_t* key, int value);
    bool SetIntToXMLFile(pug::xml_node node, const char16_t* key, int value);
    int GetIntAttributeFromXMLFile(const char16_t* section, const char16_t* key,
                                   const char16_t* attribute);
    int GetIntAttributeFromXMLFile(pug::xml_node node, const char16_t* attribute);
    bool SetIntAttributeToXMLFile(const char16_t* section, const char16_t* key,
                                  const char16_t* attribute, int value);
    bool SetIntAttributeToXMLFile(pug::xml_node node, const char16_t* attribute, int value);

    // A number that is not 0 is true; "yes" is not.
    bool GetBoolFromXMLFile(const char16_t* section, const char16_t* key);
    bool GetBoolFromXMLFile(const pug::xml_node& node, const char16_t* key);
    bool SetBoolToXMLFile(const char16_t* section, const char16_t* key, bool value);
    bool SetBoolToXMLFile(pug::xml_node node, const char16_t* key, bool value);
    bool GetBoolAttributeFromXMLFile(const char16_t* section, const char16_t* key,
                                     const char16_t* attribute);
    bool GetBoolAttributeFromXMLFile(pug::xml_node node, const char16_t* attribute);
    bool SetBoolAttributeToXMLFile(const char16_t* section, const char16_t* key,
                                   const char16_t* attribute, bool value);
    bool SetBoolAttributeToXMLFile(pug::xml_node node, const char16_t* attribute, bool value);

    // The section, if it has children; empty otherwise.
    static pug::xml_node FindSection(const pug::xml_parser& document, const char16_t* section);
    // The same, or the element of the key below it.
    static pug::xml_node FindTarget(const pug::xml_parser& document, const char16_t* section,
                                    const char16_t* key);
    static bool ReadDocument(const QString& filename, pug::xml_parser& document);
    static bool WriteDocument(const QString& filename, const pug::xml_parser& document);

    QString m_filename;
    bool m_parsed = false;
    bool m_modified = false;
    pug::xml_parser m_document;

private:
    bool SaveUserCopy();

    QString m_userCopy;
    bool m_readsCopy = false; // the document came from the user's copy
};
