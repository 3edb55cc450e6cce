// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/language/FileTypeManager.h"

#include "common/Globals.h"
#include "editing/language/UserFolder.h"
#include "platform/system/Exceptions.h"
#include "platform/system/SpecialFolders.h"
#include "settings/ConfigFile.h"
#include "settings/SyntaxFile.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr QChar kSeparator = u'/';

// Where a user's own colours are kept; made if it is missing. Empty if the user has no folder; a
// failure to make it shows when the colours are saved.
QString CustomSyntaxFolder()
{
    if (znutils::CSpecialFolders::GetLocalAppDataPath(true).isEmpty())
        return QString();
    const QString folder = UserSettingsPath(QStringLiteral("Syntax"));
    QDir().mkpath(folder);
    return folder + kSeparator;
}

} // namespace

CFileTypeManager::CFileTypeManager() = default;
CFileTypeManager::~CFileTypeManager() = default;

void CFileTypeManager::Init(CConfigFile* config)
{
    FillLanguageNames(config);
    LoadSyntaxFiles(config);
}

void CFileTypeManager::FillLanguageNames(CConfigFile* config)
{
    m_languageNames.clear();
    const int count = config->GetLanguageCount();
    for (int language = 0; language < count; ++language)
        m_languageNames.push_back(config->GetLanguageName(language));
}

void CFileTypeManager::LoadSyntaxFiles(CConfigFile* config)
{
    const int count = config->GetLanguageCount();
    const QString customFolder = CustomSyntaxFolder();
    const QString baseFolder = zncoreeditor::GetAppPath() + QStringLiteral("Syntax") + kSeparator;
    for (int language = 0; language < count; ++language) {
        const QString name = config->GetLanguageSyntaxFileName(language);
        LoadSyntaxFile(language, baseFolder + name,
                       customFolder.isEmpty() ? QString() : customFolder + name);
    }
}

// A language that kept both its files is cleared too, which makes of every Init a reload. One that
// kept its custom file and got another base file is left alone.
void CFileTypeManager::LoadSyntaxFile(int language, const QString& baseName,
                                      const QString& customName)
{
    std::unique_ptr<CSyntaxFile>& file = m_syntaxFiles[language];
    if (!file)
        file = std::make_unique<CSyntaxFile>();
    else if (file->GetCustomFilename() != customName || file->GetFilename() == baseName)
        file->Clear();
    else
        return;
    file->SetFilename(baseName);
    file->SetCustomFilename(customName);
    file->SetUserCopy(UserSettingsPath(QStringLiteral("Base/") + QFileInfo(baseName).fileName()));
}

QString CFileTypeManager::GetLanguageName(int language) const
{
    if (language < 0 || language >= GetLanguageCount())
        throw CInvalidArgException("there is no language of this number");
    return m_languageNames[static_cast<std::size_t>(language)];
}

CSyntaxFile* CFileTypeManager::GetSyntaxFile(int language) const
{
    const auto found = m_syntaxFiles.find(language);
    return found != m_syntaxFiles.end() ? found->second.get() : nullptr;
}

int CFileTypeManager::GetBraceMatching(int language)
{
    CSyntaxFile* file = GetSyntaxFile(language);
    return file && file->Parse() && file->GetBraceMatch() ? 1 : 0;
}

int CFileTypeManager::GetSyntaxHighlighting(int language)
{
    CSyntaxFile* file = GetSyntaxFile(language);
    return file && file->Parse() && file->GetSyntaxHighlighting() ? 1 : 0;
}

QString CFileTypeManager::GetDelimitedKeywords(int language, char delimiter)
{
    CSyntaxFile* file = GetSyntaxFile(language);
    return file && file->Parse() ? file->GetDelimitedKeywords(delimiter) : QString();
}

void CFileTypeManager::ReParseAllSyntaxFiles()
{
    for (const auto& [language, file] : m_syntaxFiles)
        file->Clear();
}

void CFileTypeManager::SetCoreEditorDefaultProperties(int /*language*/,
                                                      CZNCoreEditorControlEx* /*control*/)
{}
