// SPDX-License-Identifier: GPL-3.0-or-later
// The dialogs for finding over a real editor, with a user who closes each message.
#pragma once

#include "platform/windows/Questions.h"
#include "search/dialogs/FindControls.h"
#include "search/dialogs/FindDialog.h"
#include "tests/search/FindFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QStringList>

#include <functional>

class MessageReader final : public IUserQuestions
{
public:
    MessageReader() { SetUserQuestions(this); }
    ~MessageReader() override { SetUserQuestions(nullptr); }

    Answer Ask(HWND, const QString& text, Buttons) override
    {
        read << text;
        if (meanwhile)
            meanwhile();
        return Answer::Ok;
    }
    QString BrowseForFolder(HWND, const QString&, const QString&) override { return folder; }
    QString BrowseForFile(HWND, const QString& title, const QString&, const QString&) override
    {
        read << title;
        return file;
    }

    QStringList read;
    QString folder;
    QString file;
    std::function<void()> meanwhile;
};

// The manager is the process's, as the dialogs take it.
class FindDialogTest : public testing::Test
{
protected:
    FindDialogTest()
    {
        parent.resize(400, 300);
        control.SubclassWindow(
            CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 400, 300}, &parent));
        control.SetEOLMode(0, 1);
        parent.show();
        shared.SetDown(true);
        shared.SetWrap(true);
        shared.SetMatchCase(false);
        shared.SetWholeWord(false);
        shared.SetRegExp(false);
    }
    ~FindDialogTest() override
    {
        if (CFindDialog* dialog = CFindDialog::GetFindDialog(false, false))
            dialog->DestroyWindow();
        if (CFindReplace* dialog = CFindReplace::GetReplaceDialog(false, false))
            dialog->DestroyWindow();
        QApplication::processEvents();
    }

    void Put(const char16_t* text, long anchor = 0, long caret = 0)
    {
        control.SetText(text, 1);
        control.SetSel(anchor, caret, 1);
    }
    QString Text() { return control.GetText(); }
    std::pair<long, long> Selection()
    {
        return {control.GetSelectionStart(1), control.GetSelectionEnd(1)};
    }
    using Pair = std::pair<long, long>;

    CFindDialog& Find(const char16_t* text = u"")
    {
        ShowFindDialog(QString::fromUtf16(text), &control);
        return *CFindDialog::GetFindDialog(false, false);
    }
    CFindReplace& Replace(const char16_t* text = u"", const char16_t* with = u"")
    {
        ShowReplaceDialog(QString::fromUtf16(text), &control);
        CFindReplace& dialog = *CFindReplace::GetReplaceDialog(false, false);
        dialog.GetDlgItem<QComboBox>(findcontrol::ReplaceBox)
            ->setEditText(QString::fromUtf16(with));
        return dialog;
    }
    static void Click(const CDialog& dialog, UINT id)
    {
        dialog.GetDlgItem<QAbstractButton>(id)->click();
    }

    MemoryRegistry registry;
    MessageReader user;
    CFindReplaceManager& shared = *zncoreeditor::GetFindReplaceManager();
    QWidget parent;
    CZNCoreEditorControlEx control;
};
