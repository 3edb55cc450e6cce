// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CEditorPrefsDialog: the preferences of the editor and of every language, as a tree of pages.
#pragma once

#include "platform/dialogs/Dialog.h"
#include "prefs/pages/ColorPref.h"
#include "prefs/pages/FontPref.h"
#include "prefs/pages/KeywordPref.h"
#include "prefs/pages/MainColorFontPref.h"
#include "prefs/pages/SettingsPref.h"

#include <QHash>
#include <QString>

#include <memory>
#include <vector>

class CConfigFile;
class CEditorPrefsStatic;
class CFileTypeManager;
class QLabel;
class QLineEdit;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

/// Apply writes the files at once, and Cancel does not take that back. A page's window is made when
/// the page is first shown; one that has none has no changes.
class ZN_API CEditorPrefsDialog final : public CDialog
{
public:
    /// Both files have to outlive the dialog. The parent may be null.
    CEditorPrefsDialog(const QString& title, CConfigFile& config, CFileTypeManager& languages,
                       CWnd* parent = nullptr);
    ~CEditorPrefsDialog() override;

    /// A page in the tree.
    struct PageRecord
    {
        CEditorPrefsSubDlg* page;   ///< the dialog's own
        UINT templateId;            ///< prefscontrol
        QString title;              ///< as the tree shows it
        CEditorPrefsSubDlg* parent; ///< null at the top
    };
    const std::vector<PageRecord>& Pages() const { return m_pages; } ///< in the order of the tree
    int CurrentPage() const { return m_current; } ///< its place in Pages; -1: none
    void ShowPage(int page);                      ///< makes its window if it has none

    /// Takes what the pages hold, writes it and gives it to the open editors. With closing, ends
    /// the pages. False, with the page in front that refuses, if one does.
    bool Apply(bool closing);

    int PreTranslateMessage(MSG* message) override;

protected:
    void OnBuild(QWidget* window) override;
    bool OnInitDialog() override;
    void OnOK() override;
    const MessageMap& GetMessageMap() const override;
    const CommandMap& GetCommandMap() const override;

private:
    class TreeKeys;

    QWidget* BuildTree();
    QWidget* BuildButtons();
    void TakeIntoTabOrder(QWidget& page);
    void AddPage(CEditorPrefsSubDlg& page, UINT templateId, const QString& title,
                 CEditorPrefsSubDlg* parent = nullptr);
    void AddLanguage(int language);
    int CurrentLanguage() const; // -1 on the page of all
    void ReloadPages();
    void Filter(const QString& word);
    bool TakePages();
    bool HasChanges() const;
    void SetChanged(bool changed);
    void WritePages();
    void WriteFiles();
    bool TellFailures();
    void OnHelp();

    QString m_title;
    CConfigFile& m_config;
    CFileTypeManager& m_languages;
    std::vector<PageRecord> m_pages;
    QHash<CEditorPrefsSubDlg*, QTreeWidgetItem*> m_items;
    int m_current = -1;
    int m_languageCount = 0;

    // One page of each kind for each language, by its number.
    template <class Page>
    using PagesOf = std::vector<std::unique_ptr<Page>>;
    CMainColorFontPref m_mainPage;
    PagesOf<CEditorPref> m_editorPages;
    PagesOf<CColorPref> m_colorPages;
    PagesOf<CFontPref> m_fontPages;
    PagesOf<CKeywordPref> m_keywordPages;
    PagesOf<CCodingPref> m_codingPages;

    QTreeWidget* m_tree = nullptr;
    QLineEdit* m_filter = nullptr; // what is sought in it
    QLabel* m_none = nullptr;      // says that nothing is left of it
    QWidget* m_settings = nullptr; // the button below the tree
    CEditorPrefsStatic* m_caption = nullptr;
    QStackedWidget* m_frame = nullptr;
    QLabel* m_note = nullptr;
    std::vector<int> m_written; // languages of the last Apply
    bool m_configWritten = false;
    QStringList m_notWritten; // files of the last Apply
};
