// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/OpenEditors.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "platform/services/OptionsServer.h"
#include "settings/SyntaxFile.h"

#include <QApplication>

#include <algorithm>

namespace {

constexpr int kKeywordSets = 8;

// Binding a language leaves the words of a set alone that has none, which here may have lost them.
void TakeEmptySets(CZNCoreEditorControlEx& editor, CSyntaxFile& file)
{
    for (int set = 0; set < kKeywordSets; ++set) {
        if (!file.GetKeywordSetDescription(set).isEmpty() &&
            file.GetDelimitedKeywordSet(set, ' ').isEmpty())
            editor.SetKeyWords(set, u"", 1);
    }
}

} // namespace

std::vector<CZNCoreEditorControlEx*> OpenEditors()
{
    std::vector<CZNCoreEditorControlEx*> editors;
    for (QWidget* widget : QApplication::allWidgets()) {
        if (auto* editor = dynamic_cast<CZNCoreEditorControlEx*>(AttachedWnd(widget)))
            editors.push_back(editor);
    }
    return editors;
}

// What the options fill in has gone with the settings, and is filled in once more.
void ReloadOpenEditors()
{
    for (CZNCoreEditorControlEx* editor : OpenEditors()) {
        if (editor->GetUserSettingsFirst())
            SendMessage(editor->GetSafeHwnd(), kOptionsChanged, 0, 0);
        else
            editor->InitializeLanguage(editor->GetCurrentLanguage(), 1);
    }
}

void RebindOpenEditors(const std::vector<int>& languages, bool all)
{
    for (CZNCoreEditorControlEx* editor : OpenEditors()) {
        const int language = editor->GetCurrentLanguage();
        if (!all && std::ranges::find(languages, language) == languages.end())
            continue;
        if (CSyntaxFile* file = zncoreeditor::GetFileTypeManager()->GetSyntaxFile(language))
            TakeEmptySets(*editor, *file);
        editor->InitializeLanguage(language, 1);
    }
}
