// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/XMLFile.h"

#include "platform/file/DiskFile.h"
#include "settings/Number.h"
#include "settings/XMLWriter.h"

#include "platform/text/StringUtils.h"

#include <QDir>
#include <QFileInfo>

#include <new>

namespace {

bool ReadsAsTrue(const QString& value)
{
    return !value.isEmpty() && QStringView(u"1tTyY").contains(value[0]);
}

} // namespace

const CRuntimeClass* CXMLFile::GetThisClass()
{
    static const CRuntimeClass own = {"CXMLFile", CObject::GetThisClass()};
    return &own;
}

QString CXMLFile::GetStringFromXMLFile(const pug::xml_node& node, const char16_t* key)
{
    return node.first_element_by_name(key).first_child().value();
}

QString CXMLFile::GetStringFromXMLFile(const char16_t* section, const char16_t* key)
{
    if (!m_parsed && !Parse())
        return QString();
    const pug::xml_node node = FindSection(m_document, section);
    return node.empty() ? QString() : GetStringFromXMLFile(node, key);
}

bool CXMLFile::SetStringToXMLFile(pug::xml_node& node, const char16_t* key, const QString& value,
                                  bool asText)
{
    if (!key)
        return false;
    const pug::xml_node_type type = asText ? pug::node_pcdata : pug::node_cdata;
    pug::xml_node element = node.first_element_by_name(key);
    if (element.empty()) {
        element = node.append_child(pug::node_element);
        if (!element.set_name(key))
            return false;
    }
    pug::xml_node text = element.first_child();
    if (text.empty())
        text = element.append_child(type);
    if (!text.set_type(type) || !text.set_value(value))
        return false;
    m_modified = true;
    return true;
}

bool CXMLFile::SetStringToXMLFile(const char16_t* section, const char16_t* key,
                                  const QString& value, bool asText)
{
    if (!m_parsed && !Parse())
        return false;
    pug::xml_node node = FindSection(m_document, section);
    if (node.empty() || !SetStringToXMLFile(node, key, value, asText))
        return false;
    m_modified = true;
    return true;
}

QString CXMLFile::GetStringAttributeFromXMLFile(pug::xml_node& node, const char16_t* attribute)
{
    return node.attribute(attribute).value();
}

QString CXMLFile::GetStringAttributeFromXMLFile(const char16_t* section, const char16_t* key,
                                                const char16_t* attribute)
{
    if (!m_parsed && !Parse())
        return QString();
    pug::xml_node node = FindTarget(m_document, section, key);
    return node.empty() ? QString() : GetStringAttributeFromXMLFile(node, attribute);
}

bool CXMLFile::SetStringAttributeToXMLFile(pug::xml_node& node, const char16_t* attribute,
                                           const QString& value)
{
    if (!node.has_attributes())
        return ReadsAsTrue(node.append_attribute(attribute, value).value());
    pug::xml_attribute found = node.attribute(attribute);
    const bool done =
        found.empty() ? !node.append_attribute(attribute, value).empty() : found.set_value(value);
    m_modified |= done;
    return done;
}

bool CXMLFile::SetStringAttributeToXMLFile(const char16_t* section, const char16_t* key,
                                           const char16_t* attribute, const QString& value)
{
    if (!m_parsed && !Parse())
        return false;
    pug::xml_node node = FindTarget(m_document, section, key);
    return !node.empty() && SetStringAttributeToXMLFile(node, attribute, value);
}

bool CXMLFile::Parse()
{
    if (m_filename.isEmpty())
        return false;
    if (m_parsed)
        return true;
    m_readsCopy = !m_userCopy.isEmpty() && ReadDocument(m_userCopy, m_document);
    m_parsed = m_readsCopy || ReadDocument(m_filename, m_document);
    return m_parsed;
}

bool CXMLFile::Save()
{
    if (!m_parsed)
        return false;
    if (m_modified &&
        !(m_userCopy.isEmpty() ? WriteDocument(m_filename, m_document) : SaveUserCopy()))
        return false;
    m_modified = false;
    return true;
}

// A setting that was set to what it was is no change.
bool CXMLFile::SaveUserCopy()
{
    if (!m_readsCopy && QFileInfo::exists(m_userCopy))
        return false;
    pug::xml_parser before;
    if (ReadDocument(m_readsCopy ? m_userCopy : m_filename, before) &&
        WriteXML(before.document()) == WriteXML(m_document.document()))
        return true;
    QDir().mkpath(QFileInfo(m_userCopy).path());
    if (!WriteDocument(m_userCopy, m_document))
        return false;
    m_readsCopy = true;
    return true;
}

void CXMLFile::Clear()
{
    m_document.clear();
    m_parsed = false;
    m_modified = false;
}

bool CXMLFile::Revert()
{
    if (m_parsed && m_modified)
        Clear();
    return true;
}

pug::xml_node CXMLFile::FindSection(const pug::xml_parser& document, const char16_t* section)
{
    const pug::xml_node node = document.document().first_element_by_name(section);
    return node.has_children() ? node : pug::xml_node();
}

pug::xml_node CXMLFile::FindTarget(const pug::xml_parser& document, const char16_t* section,
                                   const char16_t* key)
{
    const pug::xml_node node = FindSection(document, section);
    return key ? node.first_element_by_name(key) : node;
}

// A file may be larger than the memory that is left for it.
bool CXMLFile::ReadDocument(const QString& filename, pug::xml_parser& document)
try {
    const auto bytes = ReadWholeFile(filename);
    if (!bytes)
        return false;
    const std::u16string text = znutils::StringUtils::ConvertMBToUnicode(
        {bytes->constData(), static_cast<std::size_t>(bytes->size())});
    // By its units: the other ways to a QString drop a mark in front.
    return document.parse(
        QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size())));
} catch (const std::bad_alloc&) {
    document.clear();
    return false;
}

// The text is whole before the file is opened: what fails until then leaves the file as it was.
bool CXMLFile::WriteDocument(const QString& filename, const pug::xml_parser& document)
try {
    const QString text = WriteXML(document.document());
    const std::string bytes = znutils::StringUtils::ConvertToMBString(
        {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())});
    return WriteWholeFile(filename, QByteArray::fromStdString(bytes));
} catch (const std::bad_alloc&) {
    return false;
}

int CXMLFile::GetIntFromXMLFile(const char16_t* section, const char16_t* key)
{
    return TextToInt(GetStringFromXMLFile(section, key));
}

int CXMLFile::GetIntFromXMLFile(const pug::xml_node& node, const char16_t* key)
{
    return TextToInt(GetStringFromXMLFile(node, key));
}

bool CXMLFile::SetIntToXMLFile(const char16_t* section, const char16_t* key, int value)
{
    return SetStringToXMLFile(section, key, QString::number(value), true);
}

bool CXMLFile::SetIntToXMLFile(pug::xml_node node, const char16_t* key, int value)
{
    return SetStringToXMLFile(node, key, QString::number(value), true);
}

int CXMLFile::GetIntAttributeFromXMLFile(const char16_t* section, const char16_t* key,
                                         const char16_t* attribute)
{
    return TextToInt(GetStringAttributeFromXMLFile(section, key, attribute));
}

int CXMLFile::GetIntAttributeFromXMLFile(pug::xml_node node, const char16_t* attribute)
{
    return TextToInt(GetStringAttributeFromXMLFile(node, attribute));
}

bool CXMLFile::SetIntAttributeToXMLFile(const char16_t* section, const char16_t* key,
                                        const char16_t* attribute, int value)
{
    return SetStringAttributeToXMLFile(section, key, attribute, QString::number(value));
}

bool CXMLFile::SetIntAttributeToXMLFile(pug::xml_node node, const char16_t* attribute, int value)
{
    return SetStringAttributeToXMLFile(node, attribute, QString::number(value));
}

bool CXMLFile::GetBoolFromXMLFile(const char16_t* section, const char16_t* key)
{
    return GetIntFromXMLFile(section, key) != 0;
}

bool CXMLFile::GetBoolFromXMLFile(const pug::xml_node& node, const char16_t* key)
{
    return GetIntFromXMLFile(node, key) != 0;
}

bool CXMLFile::SetBoolToXMLFile(const char16_t* section, const char16_t* key, bool value)
{
    return SetIntToXMLFile(section, key, value);
}

bool CXMLFile::SetBoolToXMLFile(pug::xml_node node, const char16_t* key, bool value)
{
    return SetIntToXMLFile(node, key, value);
}

bool CXMLFile::GetBoolAttributeFromXMLFile(const char16_t* section, const char16_t* key,
                                           const char16_t* attribute)
{
    return GetIntAttributeFromXMLFile(section, key, attribute) != 0;
}

bool CXMLFile::GetBoolAttributeFromXMLFile(pug::xml_node node, const char16_t* attribute)
{
    return GetIntAttributeFromXMLFile(node, attribute) != 0;
}

bool CXMLFile::SetBoolAttributeToXMLFile(const char16_t* section, const char16_t* key,
                                         const char16_t* attribute, bool value)
{
    return SetIntAttributeToXMLFile(section, key, attribute, value);
}

bool CXMLFile::SetBoolAttributeToXMLFile(pug::xml_node node, const char16_t* attribute, bool value)
{
    return SetIntAttributeToXMLFile(node, attribute, value);
}
