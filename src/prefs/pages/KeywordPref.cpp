// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/pages/KeywordPref.h"

#include "prefs/pages/SyntaxTexts.h"
#include "settings/SyntaxFile.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScopedValueRollback>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(KeywordPref)
};

namespace id = prefscontrol;

} // namespace

void CKeywordPref::OnBuild(QWidget* window)
{
    auto* page = new QGridLayout(window);
    auto* types = new QLabel(Texts::tr("Keyword Type"));
    auto* sets = AddControl(id::KeywordSets, new QListWidget);
    sets->setAccessibleName(types->text());
    types->setBuddy(sets);
    auto* list = new QLabel(Texts::tr("Keyword List"));
    auto* words = AddControl(id::Keywords, new QPlainTextEdit);
    words->setAccessibleName(list->text());
    words->setTabChangesFocus(true);
    list->setBuddy(words);
    m_hint = new QLabel;
    m_hint->setWordWrap(true);
    page->addWidget(types, 0, 0);
    page->addWidget(sets, 1, 0);
    page->addWidget(list, 0, 1);
    page->addWidget(words, 1, 1);
    page->addWidget(m_hint, 2, 0, 1, 2);
    page->setColumnStretch(0, 1);
    page->setColumnStretch(1, 2);
}

bool CKeywordPref::OnInitDialog()
{
    m_isFilling = true;
    m_words = {};
    CSyntaxFile* file = Syntax();
    if (!file)
        return true;
    auto* sets = GetDlgItem<QListWidget>(id::KeywordSets);
    for (int set = 0; set < kSets; ++set) {
        const QString description = file->GetKeywordSetDescription(set);
        if (description.isEmpty())
            continue;
        auto* item = new QListWidgetItem(ShownKeywordSet(description), sets);
        item->setData(Qt::UserRole, set);
        m_words[static_cast<std::size_t>(set)] = file->GetDelimitedKeywordSet(set, ' ');
    }
    sets->setCurrentRow(0);
    ShowSet();
    m_isFilling = false;
    return CEditorPrefsSubDlg::OnInitDialog();
}

int CKeywordPref::CurrentSet() const
{
    const QListWidgetItem* item = GetDlgItem<QListWidget>(id::KeywordSets)->currentItem();
    return item ? item->data(Qt::UserRole).toInt() : -1;
}

void CKeywordPref::ShowSet()
{
    const QScopedValueRollback filling(m_isFilling, true);
    const int set = CurrentSet();
    auto* words = GetDlgItem<QPlainTextEdit>(id::Keywords);
    words->setEnabled(set >= 0);
    words->setPlainText(set < 0 ? QString() : m_words[static_cast<std::size_t>(set)]);
    ShowHint();
}

// A new line parts two words as a blank does, which alone parts them in the settings.
void CKeywordPref::OnTyped()
{
    const int set = CurrentSet();
    if (set < 0)
        return;
    QString text = GetDlgItem<QPlainTextEdit>(id::Keywords)->toPlainText();
    for (const char16_t parting : {u'\n', u'\t'})
        text.replace(QChar(parting), u' ');
    QString& kept = m_words[static_cast<std::size_t>(set)];
    ShowHint();
    if (text == kept)
        return;
    kept = text;
    OnChanged();
}

void CKeywordPref::ShowHint()
{
    const QString text = GetDlgItem<QPlainTextEdit>(id::Keywords)->toPlainText();
    const qsizetype length = text.size();
    const bool isLost = length > 1 && !text.back().isSpace() && text[length - 2].isSpace();
    m_hint->setText(isLost ? Texts::tr("A last word of one letter is not kept, unless a blank "
                                       "follows it.")
                           : Texts::tr("Words with blanks or new lines between them."));
}

void CKeywordPref::Apply()
{
    CSyntaxFile* file = Syntax();
    if (!GetSafeHwnd() || !file)
        return;
    for (int set = 0; set < kSets; ++set) {
        const QString& words = m_words[static_cast<std::size_t>(set)];
        if (!file->GetKeywordSetDescription(set).isEmpty() &&
            words != file->GetDelimitedKeywordSet(set, ' '))
            file->SetDelimitedKeywordSet(set, words, ' ');
    }
}

void CKeywordPref::OnControl(UINT id, UINT code)
{
    if (m_isFilling)
        return;
    if (id == id::KeywordSets && code == LBN_SELCHANGE)
        ShowSet();
    else if (id == id::Keywords && code == EN_CHANGE)
        OnTyped();
}
