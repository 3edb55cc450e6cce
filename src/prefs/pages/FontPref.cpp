// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/pages/FontPref.h"

#include "platform/windows/Questions.h"
#include "prefs/controls/ColorStatic.h"
#include "prefs/pages/StyleSample.h"
#include "prefs/pages/SyntaxTexts.h"
#include "settings/Number.h"
#include "settings/SyntaxFile.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FontPref)
};

namespace id = prefscontrol;

constexpr int kLastStyle = 127;
constexpr const char* kSizes[] = {"6",  "8",  "9",  "10", "11", "12", "14", "16", "18",
                                  "20", "22", "24", "26", "28", "36", "48", "72"};

QListWidgetItem* FirstThatBegins(const QListWidget& list, const QString& text)
{
    for (int row = 0; !text.isEmpty() && row < list.count(); ++row) {
        if (list.item(row)->text().startsWith(text, Qt::CaseInsensitive))
            return list.item(row);
    }
    return nullptr;
}

void Mark(QListWidget& list, const QString& text)
{
    const QList<QListWidgetItem*> found = list.findItems(text, Qt::MatchFixedString);
    list.setCurrentItem(found.value(0));
}

} // namespace

void CFontPref::OnBuild(QWidget* window)
{
    auto* page = new QGridLayout(window);
    const auto label = [page](const char* text, QWidget* buddy, int row, int column) {
        auto* made = new QLabel(Texts::tr(text));
        made->setBuddy(buddy);
        page->addWidget(made, row, column);
    };
    auto* styles = AddControl(id::FontStyles, new QComboBox);
    styles->setAccessibleName(Texts::tr("Style"));
    label(QT_TRANSLATE_NOOP("FontPref", "Style"), styles, 0, 0);
    page->addWidget(styles, 1, 0, 1, 3);

    const auto column = [&](UINT edit, UINT list, const char* text, int at) {
        auto* typed = AddControl(edit, new QLineEdit);
        auto* choices = AddControl(list, new QListWidget);
        typed->setAccessibleName(Texts::tr(text));
        choices->setAccessibleName(Texts::tr("%1, list").arg(Texts::tr(text)));
        label(text, typed, 2, at);
        page->addWidget(typed, 3, at);
        page->addWidget(choices, 4, at, 4, 1);
    };
    column(id::FontName, id::FontNames, QT_TRANSLATE_NOOP("FontPref", "Font"), 0);
    column(id::FontSize, id::FontSizes, QT_TRANSLATE_NOOP("FontPref", "Size"), 1);
    page->addWidget(AddControl(id::Bold, new QCheckBox(Texts::tr("Bold"))), 3, 2);
    page->addWidget(AddControl(id::Italic, new QCheckBox(Texts::tr("Italic"))), 4, 2);
    page->addWidget(AddControl(id::Underline, new QCheckBox(Texts::tr("Underline"))), 5, 2);
    auto* all = AddControl(id::ToAllStyles, new QPushButton(Texts::tr("Apply to all Styles")));
    all->setAutoDefault(false);
    page->addWidget(all, 6, 2);

    auto* group = new QGroupBox(Texts::tr("Sample Text Area"));
    auto* samples = new QVBoxLayout(group);
    samples->addWidget(AddControl(id::Sample, new CColorStatic(Texts::tr("Sample Text"))));
    m_sample = new StyleSample;
    samples->addWidget(m_sample, 1);
    page->addWidget(group, 8, 0, 1, 3);
    page->setRowStretch(7, 1);
    page->setRowStretch(8, 2);
    page->setColumnStretch(0, 3);
    page->setColumnStretch(1, 1);
}

bool CFontPref::OnInitDialog()
{
    m_isFilling = true;
    m_records.clear();
    auto* names = GetDlgItem<QListWidget>(id::FontNames);
    names->setUniformItemSizes(true);
    names->addItems(QFontDatabase::families());
    for (const char* size : kSizes)
        GetDlgItem<QListWidget>(id::FontSizes)->addItem(QLatin1String(size));
    CSyntaxFile* file = Syntax();
    if (!file)
        return true;
    m_sample->Show(*file);
    auto* styles = GetDlgItem<QComboBox>(id::FontStyles);
    for (int style = 0; style <= kLastStyle; ++style) {
        const QString name = file->GetStyleName(style);
        if (name.isEmpty())
            continue;
        styles->addItem(ShownStyle(name), style);
        m_records[style] = {file->GetStyleFontName(style),
                            QString::number(file->GetStyleFontSize(style)),
                            file->GetStyleFontBold(style), file->GetStyleFontItalic(style),
                            file->GetStyleFontUnderline(style)};
    }
    styles->setCurrentIndex(styles->count() > 0 ? 0 : -1);
    ShowStyle();
    return CEditorPrefsSubDlg::OnInitDialog();
}

CFontPref::Record* CFontPref::CurrentRecord()
{
    const auto* styles = GetDlgItem<QComboBox>(id::FontStyles);
    const auto found = m_records.find(styles->currentData().toInt());
    return styles->currentIndex() < 0 || found == m_records.end() ? nullptr : &*found;
}

void CFontPref::ShowStyle()
{
    const Record* record = CurrentRecord();
    if (!record)
        return;
    {
        const QScopedValueRollback filling(m_isFilling, true);
        GetDlgItem<QLineEdit>(id::FontName)->setText(record->name);
        GetDlgItem<QLineEdit>(id::FontSize)->setText(record->size);
        Mark(*GetDlgItem<QListWidget>(id::FontNames), record->name);
        Mark(*GetDlgItem<QListWidget>(id::FontSizes), record->size);
        GetDlgItem<QCheckBox>(id::Bold)->setChecked(record->bold);
        GetDlgItem<QCheckBox>(id::Italic)->setChecked(record->italic);
        GetDlgItem<QCheckBox>(id::Underline)->setChecked(record->underline);
    }
    m_nameBefore = record->name;
    m_sizeBefore = record->size;
    m_isFilling = false;
    ShowSample();
}

// The rest of the first entry that begins with what was typed, selected, so that typing goes on.
// What is taken away is not put back.
void CFontPref::Complete(QLineEdit& edit, QListWidget& list, QString& before)
{
    const QScopedValueRollback filling(m_isFilling, true);
    const QString typed = edit.text();
    const bool isShorter = typed.size() < before.size() && before.startsWith(typed);
    const bool atEnd = edit.cursorPosition() == typed.size();
    const QListWidgetItem* found = isShorter || !atEnd ? nullptr : FirstThatBegins(list, typed);
    if (found) {
        const qsizetype start = typed.size();
        edit.setText(found->text());
        edit.setSelection(static_cast<int>(edit.text().size()),
                          static_cast<int>(start - edit.text().size()));
    }
    Mark(list, edit.text());
    before = edit.text();
}

void CFontPref::OnTyped(UINT id)
{
    if (id == id::FontName)
        Complete(*GetDlgItem<QLineEdit>(id::FontName), *GetDlgItem<QListWidget>(id::FontNames),
                 m_nameBefore);
    else
        Complete(*GetDlgItem<QLineEdit>(id::FontSize), *GetDlgItem<QListWidget>(id::FontSizes),
                 m_sizeBefore);
    TakeControls();
}

void CFontPref::OnListChoice(UINT id)
{
    const bool isName = id == id::FontNames;
    const QListWidgetItem* item = GetDlgItem<QListWidget>(id)->currentItem();
    if (!item)
        return;
    {
        const QScopedValueRollback filling(m_isFilling, true);
        auto* edit = GetDlgItem<QLineEdit>(isName ? id::FontName : id::FontSize);
        edit->setText(item->text());
        edit->selectAll();
        (isName ? m_nameBefore : m_sizeBefore) = item->text();
    }
    TakeControls();
}

// Into the style's record and the samples.
void CFontPref::TakeControls()
{
    Record* record = CurrentRecord();
    if (!record)
        return;
    *record = {GetDlgItem<QLineEdit>(id::FontName)->text(),
               GetDlgItem<QLineEdit>(id::FontSize)->text(),
               GetDlgItem<QCheckBox>(id::Bold)->isChecked(),
               GetDlgItem<QCheckBox>(id::Italic)->isChecked(),
               GetDlgItem<QCheckBox>(id::Underline)->isChecked()};
    ShowSample();
    OnChanged();
}

void CFontPref::ShowSample()
{
    const Record* record = CurrentRecord();
    if (!record)
        return;
    constexpr int kLargest = 96; // points, of a sample that still leaves room for the page
    const int size = std::clamp(TextToInt(record->size), 0, kLargest);
    QFont font(record->name.isEmpty() ? QStringList() : QStringList{record->name});
    if (size > 0)
        font.setPointSize(size);
    font.setBold(record->bold);
    font.setItalic(record->italic);
    font.setUnderline(record->underline);
    auto* sample = GetDlgItem<CColorStatic>(id::Sample);
    sample->setFont(font);
    const int style = GetDlgItem<QComboBox>(id::FontStyles)->currentData().toInt();
    const ColourScheme::Pair colors = m_sample->ColorsOf(style);
    sample->SetColors(colors.fore, colors.back);
    m_sample->SetStyleFont(style,
                           {record->name, size, record->bold, record->italic, record->underline});
}

void CFontPref::OnBoxClicked()
{
    TakeControls();
}

// Name and size alone; the three flags stay each style's own.
void CFontPref::OnToAllStyles()
{
    const Record* current = CurrentRecord();
    if (!current)
        return;
    const Record from = *current;
    for (auto record = m_records.begin(); record != m_records.end(); ++record) {
        record->name = from.name;
        record->size = from.size;
        m_sample->SetStyleFont(record.key(), {record->name, TextToInt(record->size), record->bold,
                                              record->italic, record->underline});
    }
    ShowMessageUnder(GetSafeHwnd(), Texts::tr("Information"),
                     Texts::tr("All styles have been set to the currrent font selection."),
                     MessageKind::Information);
    OnChanged();
}

void CFontPref::Apply()
{
    CSyntaxFile* file = Syntax();
    if (!GetSafeHwnd() || !file)
        return;
    for (auto record = m_records.cbegin(); record != m_records.cend(); ++record) {
        const int style = record.key();
        file->SetStyleFontName(style, record->name);
        file->SetStyleFontSize(style, TextToInt(record->size));
        file->SetStyleFontBold(style, record->bold);
        file->SetStyleFontItalic(style, record->italic);
        file->SetStyleFontUnderline(style, record->underline);
    }
}

void CFontPref::OnControl(UINT id, UINT code)
{
    if (m_isFilling)
        return;
    if (id == id::FontStyles && code == CBN_SELCHANGE)
        ShowStyle();
    else if (code == EN_CHANGE)
        OnTyped(id);
    else if (code == LBN_SELCHANGE)
        OnListChoice(id);
}

const CommandMap& CFontPref::GetCommandMap() const
{
    static constexpr CommandEntry kCommands[] = {
        {id::Bold, [](CCmdTarget& t) { static_cast<CFontPref&>(t).OnBoxClicked(); }},
        {id::Italic, [](CCmdTarget& t) { static_cast<CFontPref&>(t).OnBoxClicked(); }},
        {id::Underline, [](CCmdTarget& t) { static_cast<CFontPref&>(t).OnBoxClicked(); }},
        {id::ToAllStyles, [](CCmdTarget& t) { static_cast<CFontPref&>(t).OnToAllStyles(); }},
    };
    static const CommandMap kMap{&CEditorPrefsSubDlg::GetCommandMap(), kCommands, {}};
    return kMap;
}
