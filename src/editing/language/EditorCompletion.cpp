// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/language/EditorCompletion.h"

#include "common/Globals.h"
#include "control/EngineRecords.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "settings/SyntaxFile.h"

#include <QFile>

#include <algorithm>
#include <iterator>

using completion::LanguageWord;
using completion::ProposalKind;

namespace {

constexpr int kSets = 8;
constexpr int kOpensAfter = 3; // letters

// What the words of a set are, by how the settings describe it.
struct Described
{
    const char* part;
    ProposalKind kind;
};
constexpr Described kDescribed[] = {
    {"unction", ProposalKind::Function},    {"types", ProposalKind::Type},
    {"rocedures", ProposalKind::Procedure}, {"outines", ProposalKind::Procedure},
    {"packages", ProposalKind::Object},     {"ariables", ProposalKind::Variable},
    {"views", ProposalKind::System},        {"tables", ProposalKind::System},
    {"schema", ProposalKind::System},       {"catalogs", ProposalKind::System},
    {"parameters", ProposalKind::System},   {"", ProposalKind::Keyword},
};

ProposalKind KindOf(const QString& description)
{
    const auto* row =
        std::find_if(std::begin(kDescribed), std::end(kDescribed), [&](const Described& each) {
            return description.contains(QLatin1String(each.part));
        });
    return row->kind;
}

} // namespace

namespace zncoreeditor {

std::vector<LanguageWord> WordsOfLanguage(int language)
{
    std::vector<LanguageWord> words;
    CSyntaxFile* syntax = GetFileTypeManager()->GetSyntaxFile(language);
    for (int set = 0; syntax && set < kSets; ++set) {
        const QString listed = syntax->GetDelimitedKeywordSet(set, ' ');
        const QString description = syntax->GetKeywordSetDescription(set);
        const ProposalKind kind = KindOf(description);
        const QString lead =
            description.contains(QLatin1String("without @@")) ? QStringLiteral("@@") : QString();
        for (const QString& word : listed.split(u' ', Qt::SkipEmptyParts))
            words.push_back({lead + word, kind});
    }
    return words;
}

completion::Signatures SignaturesOfLanguage(int language)
{
    const CFileTypeManager& languages = *GetFileTypeManager();
    QFile file(GetAppPath() + QStringLiteral("Functions.txt"));
    if (language < 0 || language >= languages.GetLanguageCount() || !file.open(QIODevice::ReadOnly))
        return {};
    constexpr qint64 kMost = 4 << 20;
    CSyntaxFile* syntax = languages.GetSyntaxFile(language);
    constexpr int kFirstOther = 19; // lexers of SQL stand below
    const int lexer = syntax && syntax->Parse() ? syntax->GetLexerNumber() : -1;
    return {QString::fromUtf8(file.read(kMost)), languages.GetLanguageName(language),
            lexer > 0 && lexer < kFirstOther};
}

} // namespace zncoreeditor

EditorCompletion::EditorCompletion(CZNCoreEditorControlEx& editor, completion::LiveIndex& index)
    : m_editor(editor), m_completer(new completion::Completer(editor, index))
{
    m_completer->SetScheme([this] { return m_editor.Scheme(); });
    m_completer->SetPrepare([this] { TakeLanguage(); });
}

EditorCompletion::~EditorCompletion()
{
    delete m_completer;
}

void EditorCompletion::TakeLanguage()
{
    const int language = m_editor.GetCurrentLanguage();
    if (language == m_language)
        return;
    m_language = language;
    m_completer->SetLanguage(zncoreeditor::WordsOfLanguage(language),
                             zncoreeditor::SignaturesOfLanguage(language));
}

void EditorCompletion::SetOpensWhileTyping(bool opens)
{
    m_opens = opens;
}

// The settings are asked at each letter, since the preferences may have changed them.
void EditorCompletion::OnNotify(const SCNotification& record)
{
    if (!m_completer)
        return;
    if (record.nmhdr.code == notify::CharAdded) {
        CSyntaxFile* syntax =
            m_opens
                ? zncoreeditor::GetFileTypeManager()->GetSyntaxFile(m_editor.GetCurrentLanguage())
                : nullptr;
        const bool opens = syntax && syntax->GetAutoCompletion();
        m_completer->SetOpensAfter(opens ? kOpensAfter : 0);
        m_completer->SetShowsCalls(opens);
    }
    m_completer->OnNotify(record);
}
