// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/Globals.h"

#include "common/Translations.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace zncoreeditor {

namespace {

const IZNBaseResourceLoader*& HostLoader()
{
    static const IZNBaseResourceLoader* loader = nullptr;
    return loader;
}

QString TextsFile(const QString& language)
{
    return QStringLiteral(":/zncoreeditor/Strings%1.xml").arg(language);
}

// The texts in the language of the user interface; what is the same in all of them, as pictures and
// words of scripts, stands in the English file alone.
class OwnLoader final : public IZNBaseResourceLoader
{
public:
    QString LoadString(UINT id) const override
    {
        if (m_language != GetUiLanguage()) {
            m_language = GetUiLanguage();
            m_translated = CZNBaseResourceLoader(TextsFile(u'_' + m_language));
        }
        const QString translated = m_translated.LoadString(id);
        return translated.isNull() ? m_english.LoadString(id) : translated;
    }

private:
    CZNBaseResourceLoader m_english{TextsFile(QString())};
    mutable QString m_language = QStringLiteral("en");
    mutable CZNBaseResourceLoader m_translated{TextsFile(u'_' + m_language)}; // there is none
};

} // namespace

const IZNBaseResourceLoader& GetResourceLoader()
{
    static const OwnLoader own;
    return HostLoader() ? *HostLoader() : own;
}

void SetResourceLoader(const IZNBaseResourceLoader* loader)
{
    HostLoader() = loader;
}

QString GetAppPath()
{
    Dl_info info{};
    if (!dladdr(reinterpret_cast<const void*>(&GetAppPath), &info) || !info.dli_fname)
        return QString();
    const QString own = QFileInfo(QFile::decodeName(info.dli_fname)).absolutePath() + u'/';
    const QString beside = own + QStringLiteral(ZN_FOLDER "/");
    return QFileInfo(beside).isDir() ? beside : own;
}

} // namespace zncoreeditor
