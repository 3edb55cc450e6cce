// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/services/OptionsServer.h"

#include "platform/system/SettingsFile.h"
#include "platform/system/SpecialFolders.h"

#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <utility>

#include <sys/stat.h>

namespace {

struct IntDefault
{
    int key;
    int value;
};

// What an editor is like where nobody has chosen.
constexpr IntDefault kDefaults[] = {
    {option::LineNumbers, 1},
    {option::AutoIndent, 1},
    {option::TabWidth, 4},
    {option::FileTracking, 1},
    {option::FoldMargin, 1},
    {option::TabsToSpaces, 1},
    {option::DefaultTextType, 6 /* UTF-8 without a mark */},
};

constexpr int kFontPoints = 11;

int DefaultOf(int key)
{
    for (const IntDefault& row : kDefaults) {
        if (row.key == key)
            return row.value;
    }
    return 0;
}

QString NameOf(int key)
{
    return QStringLiteral("Options/") + QString::number(key);
}

void SetFaceName(LOGFONT& font, const QString& name)
{
    constexpr qsizetype kRoom = std::size(LOGFONT().lfFaceName) - 1;
    const qsizetype count = std::min(name.size(), kRoom);
    std::copy_n(name.utf16(), count, font.lfFaceName);
    font.lfFaceName[count] = u'\0';
}

QString FixedPitchFamily()
{
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    // Without a desktop the system's fixed font may be none.
    return QFontInfo(font).fixedPitch() ? QFontInfo(font).family()
                                        : QStringLiteral("DejaVu Sans Mono");
}

LOGFONT DefaultEditorFont()
{
    LOGFONT font;
    font.lfHeight = -MulDiv(kFontPoints, ScreenPixelsPerInch(), 72);
    font.lfWeight = FW_NORMAL;
    SetFaceName(font, FixedPitchFamily());
    return font;
}

// height,weight,italic,underline,strikeout,charset,face; the face may hold commas.
constexpr int kFontFields = 7;

QString Text(const LOGFONT& font)
{
    return QStringLiteral("%1,%2,%3,%4,%5,%6,%7")
        .arg(font.lfHeight)
        .arg(font.lfWeight)
        .arg(font.lfItalic)
        .arg(font.lfUnderline)
        .arg(font.lfStrikeOut)
        .arg(font.lfCharSet)
        .arg(QString::fromUtf16(font.lfFaceName));
}

bool ReadFont(const QString& text, LOGFONT& font)
{
    const QStringList fields = text.split(u',');
    if (fields.size() < kFontFields)
        return false;
    font = LOGFONT();
    font.lfHeight = fields[0].toLong();
    font.lfWeight = fields[1].toLong();
    font.lfItalic = static_cast<std::uint8_t>(fields[2].toUInt());
    font.lfUnderline = static_cast<std::uint8_t>(fields[3].toUInt());
    font.lfStrikeOut = static_cast<std::uint8_t>(fields[4].toUInt());
    font.lfCharSet = static_cast<std::uint8_t>(fields[5].toUInt());
    SetFaceName(font, fields.mid(kFontFields - 1).join(u','));
    return true;
}

CZNOptionsServer*& HostServer()
{
    static CZNOptionsServer* server = nullptr;
    return server;
}

} // namespace

CZNOptionsServer* CZNOptionsServer::GetObjectW()
{
    static CZNOptionsServer own;
    return HostServer() ? HostServer() : &own;
}

void SetOptionsServer(CZNOptionsServer* server)
{
    HostServer() = server;
}

// The file is read again when another one stands in its place; others write it whole.
struct CZNOptionsServer::Stored
{
    using Stamp = std::array<long long, 4>;

    static Stamp StampOf(const QString& path)
    {
        struct stat status = {};
        if (stat(QFile::encodeName(path).constData(), &status) != 0)
            return {};
        return {static_cast<long long>(status.st_ino), status.st_size, status.st_mtim.tv_sec,
                status.st_mtim.tv_nsec};
    }

    void Refresh()
    {
        const Stamp found = StampOf(path);
        if (isRead && found == stamp)
            return;
        std::optional<SettingsText> read = settingsfile::Read(path);
        if (!read)
            return; // tried again
        text = std::move(*read);
        stamp = found;
        isRead = true;
    }

    static QString CurrentPath()
    {
        return settingsfile::PathOf(SettingsFolderName() + QLatin1String("/ZNCoreEditor.ini"));
    }

    const QString path = CurrentPath();
    SettingsText text{QByteArray()};
    Stamp stamp = {};
    bool isRead = false;
    std::map<QString, QString> onlyHere; // what could not be written
    bool hasFailed = false;
};

CZNOptionsServer::CZNOptionsServer() = default;
CZNOptionsServer::~CZNOptionsServer() = default;

QString CZNOptionsServer::Value(int key)
{
    if (!m_stored || m_stored->path != Stored::CurrentPath())
        m_stored = std::make_unique<Stored>();
    const QString name = NameOf(key);
    if (const auto kept = m_stored->onlyHere.find(name); kept != m_stored->onlyHere.end())
        return kept->second;
    m_stored->Refresh();
    return m_stored->text.Value(name).value_or(QString());
}

void CZNOptionsServer::SetValue(int key, const QString& value)
{
    const QString given = value.isNull() ? QStringLiteral("") : value;
    if (Value(key) == given && !Value(key).isNull())
        return;
    const QString name = NameOf(key);
    const auto outcome = settingsfile::Change(m_stored->path, [&](SettingsText& text) {
        text.SetValue(name, given);
        return true;
    });
    m_stored->text.SetValue(name, given); // should the file not be read again
    m_stored->onlyHere.erase(name);
    if (outcome == settingsfile::Outcome::Failed) {
        m_stored->onlyHere[name] = given;
        m_stored->hasFailed = true;
    }
}

bool CZNOptionsServer::WasStored()
{
    return !m_stored || !std::exchange(m_stored->hasFailed, false);
}

int CZNOptionsServer::GetInt(int key)
{
    bool isNumber = false;
    const int value = Value(key).toInt(&isNumber);
    return isNumber ? value : DefaultOf(key);
}

bool CZNOptionsServer::GetBool(int key)
{
    return GetInt(key) != 0;
}

QString CZNOptionsServer::GetString(int key)
{
    return Value(key);
}

bool CZNOptionsServer::GetLOGFONT(int key, LOGFONT* font)
{
    if (ReadFont(Value(key), *font))
        return true;
    if (key != option::EditorFont)
        return false;
    *font = DefaultEditorFont();
    return true;
}

void CZNOptionsServer::SetInt(int key, int value)
{
    SetValue(key, QString::number(value));
}

void CZNOptionsServer::SetString(int key, const QString& value)
{
    SetValue(key, value);
}

void CZNOptionsServer::SetLOGFONT(int key, const LOGFONT* font)
{
    SetValue(key, Text(*font));
}
