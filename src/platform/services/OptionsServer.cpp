// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/services/OptionsServer.h"

#include "platform/system/SpecialFolders.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QSettings>
#include <QStringList>

#include <algorithm>

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

CZNOptionsServer::CZNOptionsServer() = default;
CZNOptionsServer::~CZNOptionsServer() = default;

CZNOptionsServer* CZNOptionsServer::GetObjectW()
{
    static CZNOptionsServer own;
    return HostServer() ? HostServer() : &own;
}

void SetOptionsServer(CZNOptionsServer* server)
{
    HostServer() = server;
}

QSettings& CZNOptionsServer::Store()
{
    if (!m_store || m_store->organizationName() != SettingsFolderName())
        m_store = std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                              SettingsFolderName(), QStringLiteral("ZNCoreEditor"));
    return *m_store;
}

int CZNOptionsServer::GetInt(int key)
{
    bool isNumber = false;
    const int value = Store().value(NameOf(key)).toInt(&isNumber);
    return isNumber ? value : DefaultOf(key);
}

bool CZNOptionsServer::GetBool(int key)
{
    return GetInt(key) != 0;
}

QString CZNOptionsServer::GetString(int key)
{
    return Store().value(NameOf(key)).toString();
}

bool CZNOptionsServer::GetLOGFONT(int key, LOGFONT* font)
{
    if (ReadFont(Store().value(NameOf(key)).toString(), *font))
        return true;
    if (key != option::EditorFont)
        return false;
    *font = DefaultEditorFont();
    return true;
}

void CZNOptionsServer::SetInt(int key, int value)
{
    Store().setValue(NameOf(key), value);
}

void CZNOptionsServer::SetString(int key, const QString& value)
{
    Store().setValue(NameOf(key), value);
}

void CZNOptionsServer::SetLOGFONT(int key, const LOGFONT* font)
{
    Store().setValue(NameOf(key), Text(*font));
}
