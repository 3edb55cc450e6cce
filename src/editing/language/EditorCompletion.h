// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// EditorCompletion: the list of proposals of an editor with a language: its words, its functions,
/// and whether its settings want the list to open while somebody types.
#pragma once

#include "completion/popup/Completer.h"
#include "completion/popup/LiveIndex.h"

#include <QPointer>

class CZNCoreEditorControlEx;

/// Made when the editor has its window, and gone before the editor. The index outlives it.
class ZN_API EditorCompletion
{
public:
    /// Both outlive this.
    EditorCompletion(CZNCoreEditorControlEx& editor, completion::LiveIndex& index);
    ~EditorCompletion(); ///< the list closes
    EditorCompletion(const EditorCompletion&) = delete;
    EditorCompletion& operator=(const EditorCompletion&) = delete;

    /// Null without a window of the editor.
    completion::Completer* operator->() const { return m_completer; }
    explicit operator bool() const { return m_completer != nullptr; } ///< the window is there

    /// Behind three letters, in languages whose settings say AutoCompletion, and call tips behind
    /// parentheses and commas. Off at first.
    void SetOpensWhileTyping(bool opens);
    bool OpensWhileTyping() const { return m_opens; } ///< off at first

    void OnNotify(const SCNotification& record); ///< of the editor, once it has dealt with it

private:
    void TakeLanguage();

    CZNCoreEditorControlEx& m_editor;
    QPointer<completion::Completer> m_completer;
    int m_language = -1; // that the completer has the words of
    bool m_opens = false;
};

namespace zncoreeditor {

/// What the settings of a language name, each word with what it is; empty for an unknown number.
ZN_API std::vector<completion::LanguageWord> WordsOfLanguage(int language);
/// What its functions take, by "Functions.txt" beside the library.
ZN_API completion::Signatures SignaturesOfLanguage(int language);

} // namespace zncoreeditor
