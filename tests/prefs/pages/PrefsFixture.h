// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of the preferences over the settings of the process, with a person who answers.
#pragma once

#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "editing/language/UserFolder.h"
#include "platform/windows/Questions.h"
#include "prefs/controls/ColorButton.h"
#include "prefs/pages/EditorPrefsDialog.h"
#include "settings/ConfigFile.h"
#include "settings/SyntaxFile.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QLineEdit>
#include <QListWidget>
#include <QMap>

#include <gtest/gtest.h>

class Person final : public IUserQuestions
{
public:
    Person() { SetUserQuestions(this); }
    ~Person() override { SetUserQuestions(nullptr); }

    Answer Ask(HWND, const QString& text, Buttons) override
    {
        read << text;
        return answer;
    }
    Answer AskUnder(HWND owner, const QString& title, const QString& text, Buttons buttons,
                    MessageKind) override
    {
        titles << title;
        return Ask(owner, text, buttons);
    }

    Answer answer = Answer::Yes;
    QStringList read;
    QStringList titles;
};

// What stands in files by their path: bytes and time.
using FileStates = QMap<QString, std::pair<QByteArray, QDateTime>>;

inline FileStates StatesBelow(const QString& folder)
{
    FileStates states;
    for (QDirIterator at(folder, QDir::Files, QDirIterator::Subdirectories); at.hasNext();) {
        QFile file(at.next());
        if (file.open(QIODevice::ReadOnly))
            states[file.fileName()] = {file.readAll(), at.fileInfo().lastModified()};
    }
    return states;
}

class PrefsTest : public testing::Test
{
protected:
    static constexpr int kText = 1;
    static constexpr int kTransactSql = 3;
    static constexpr int kPlSql = 4;

    PrefsTest() { AsShipped(); }
    ~PrefsTest() override
    {
        dialog.reset();
        AsShipped();
    }

    static QString UserFolder() { return UserSettingsPath(QString()); }
    static QString CustomPath(const char* file)
    {
        return UserSettingsPath(QStringLiteral("Syntax/") + QLatin1String(file));
    }

    static void AsShipped()
    {
        QDir(UserFolder()).removeRecursively();
        config().Clear();
        languages().Init(&config());
    }
    // As the next run of the program has them.
    static void ReadAgain()
    {
        config().Clear();
        languages().Init(&config());
    }

    static CConfigFile& config() { return *zncoreeditor::GetConfigFile(); }
    static CFileTypeManager& languages() { return *zncoreeditor::GetFileTypeManager(); }
    static CSyntaxFile& Language(int number) { return *languages().GetSyntaxFile(number); }

    CEditorPrefsDialog& Open()
    {
        dialog = std::make_unique<CEditorPrefsDialog>(QStringLiteral("Preferences"), config(),
                                                      languages());
        dialog->Create(nullptr);
        dialog->GetSafeHwnd()->show();
        QApplication::processEvents();
        return *dialog;
    }

    // The place of a page; title empty: of the language's first one.
    int PageOf(const QString& language, const QString& title = {}) const
    {
        const auto& pages = dialog->Pages();
        for (std::size_t i = 0; i < pages.size(); ++i) {
            const auto* parent = pages[i].parent;
            const bool fits =
                title.isEmpty() ? !parent && pages[i].title == language
                                : pages[i].title == title && parent && TitleOf(parent) == language;
            if (fits)
                return static_cast<int>(i);
        }
        ADD_FAILURE() << "no page " << language.toStdString() << " " << title.toStdString();
        return 0;
    }
    QString TitleOf(const CEditorPrefsSubDlg* page) const
    {
        for (const auto& record : dialog->Pages()) {
            if (record.page == page)
                return record.title;
        }
        return {};
    }

    CEditorPrefsSubDlg& Show(const char* language, const char* title = "")
    {
        const int page = PageOf(QLatin1String(language), QLatin1String(title));
        dialog->ShowPage(page);
        QApplication::processEvents();
        return *dialog->Pages()[static_cast<std::size_t>(page)].page;
    }

    static void Click(const CDialog& page, UINT id)
    {
        page.GetDlgItem<QAbstractButton>(id)->click();
        QApplication::processEvents();
    }
    static bool IsChecked(const CDialog& page, UINT id)
    {
        return page.GetDlgItem<QAbstractButton>(id)->isChecked();
    }
    static void Type(const CDialog& page, UINT id, const char* text)
    {
        page.GetDlgItem<QLineEdit>(id)->setText(QLatin1String(text));
        QApplication::processEvents();
    }
    static void ChooseColor(const CDialog& page, UINT id, COLORREF color)
    {
        auto* button = page.GetDlgItem<CColorButton>(id);
        button->click();
        ASSERT_TRUE(button->Popup()) << "the button is off";
        Q_EMIT button->Popup()->Chosen(color);
        QApplication::processEvents();
    }
    bool CanApply() const { return dialog->GetDlgItem(prefscontrol::Apply)->isEnabled(); }

    Person person;
    std::unique_ptr<CEditorPrefsDialog> dialog;
};
