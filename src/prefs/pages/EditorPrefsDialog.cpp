// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/pages/EditorPrefsDialog.h"

#include "editing/OpenEditors.h"
#include "editing/language/FileTypeManager.h"
#include "platform/windows/Accelerators.h"
#include "prefs/pages/EditorPrefsStatic.h"
#include "prefs/pages/Preferences.h"
#include "prefs/pages/SettingsMenu.h"
#include "settings/ConfigFile.h"
#include "settings/SyntaxFile.h"

#include <QApplication>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyle>
#include <QTreeWidget>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(EditorPrefsDialog)
};

namespace id = prefscontrol;

constexpr int kNoPagesLanguage = 11; // has none in the tree
constexpr int kPlainLanguage = 1;    // has no code and no keywords

// For a screen that is too low for all of a page.
QScrollArea* InScrollArea(QWidget* page)
{
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(page);
    area->setMinimumWidth(page->minimumSizeHint().width() +
                          area->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, area));
    return area;
}

QWidget* AreaOf(const QWidget& page)
{
    return page.parentWidget()->parentWidget(); // around the area's inside
}

} // namespace

// What is typed over the tree is sought in it.
class CEditorPrefsDialog::TreeKeys final : public QObject
{
public:
    TreeKeys(QTreeWidget& tree, QLineEdit& filter) : QObject(&tree), m_tree(tree), m_filter(filter)
    {
        tree.installEventFilter(this);
        filter.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        auto& key = static_cast<QKeyEvent&>(*event);
        if (watched == &m_filter)
            return IsOfTheFilter(key);
        const QString text = key.text();
        if (text.isEmpty() || !text.front().isPrint() || text.front().isSpace() ||
            key.modifiers() & (Qt::ControlModifier | Qt::AltModifier))
            return false;
        m_filter.setFocus();
        m_filter.insert(text);
        return true;
    }

private:
    bool IsOfTheFilter(const QKeyEvent& key)
    {
        if (key.key() != Qt::Key_Down && key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter)
            return false;
        m_tree.setFocus();
        ShowFirst();
        return true;
    }

    // Of the languages that are left; the page that is shown stays if it is among them.
    void ShowFirst()
    {
        const QTreeWidgetItem* current = m_tree.currentItem();
        if (current && !current->isHidden() &&
            (!current->parent() || !current->parent()->isHidden()))
            return;
        for (int top = 0; top < m_tree.topLevelItemCount(); ++top) {
            if (m_tree.topLevelItem(top)->isHidden())
                continue;
            m_tree.setCurrentItem(m_tree.topLevelItem(top));
            return;
        }
    }

    QTreeWidget& m_tree;
    QLineEdit& m_filter;
};

CEditorPrefsDialog::CEditorPrefsDialog(const QString& title, CConfigFile& config,
                                       CFileTypeManager& languages, CWnd* parent)
    : CDialog(parent), m_title(title), m_config(config), m_languages(languages)
{}

// The pages go before the widgets that they stand on.
CEditorPrefsDialog::~CEditorPrefsDialog()
{
    DestroyWindow();
}

QWidget* CEditorPrefsDialog::BuildTree()
{
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins({});
    auto* filter = new QLineEdit;
    filter->setObjectName(QStringLiteral("filter"));
    filter->setPlaceholderText(Texts::tr("Find a language or a page"));
    filter->setAccessibleName(filter->placeholderText());
    filter->setClearButtonEnabled(true);
    m_tree = AddControl(id::Tree, new QTreeWidget);
    m_tree->setHeaderHidden(true);
    m_tree->setAccessibleName(Texts::tr("Pages"));
    m_tree->setUniformRowHeights(true);
    new TreeKeys(*m_tree, *filter); // goes with the tree
    m_filter = filter;
    m_none = new QLabel(Texts::tr("No page has this word."));
    m_none->setObjectName(QStringLiteral("noPage"));
    m_none->setWordWrap(true);
    m_none->hide();
    auto* settings = new QPushButton(Texts::tr("&Settings"));
    settings->setAutoDefault(false);
    m_settings = settings;
    auto* menu = new SettingsMenu(m_config, m_languages, settings);
    menu->currentLanguage = [this] { return CurrentLanguage(); };
    settings->setMenu(menu);
    QObject::connect(menu, &SettingsMenu::Replaced, m_tree, [this] { ReloadPages(); });
    column->addWidget(filter);
    column->addWidget(m_tree);
    column->addWidget(m_none);
    column->addWidget(settings);
    auto* find = new QShortcut(QKeySequence::Find, side);
    QObject::connect(find, &QShortcut::activated, filter, [filter] {
        filter->setFocus(Qt::ShortcutFocusReason);
        filter->selectAll();
    });
    QObject::connect(filter, &QLineEdit::textChanged, m_tree,
                     [this](const QString& word) { Filter(word.trimmed()); });
    QObject::connect(m_tree, &QTreeWidget::currentItemChanged, m_tree,
                     [this](const QTreeWidgetItem* item) {
                         const int page = item ? item->data(0, Qt::UserRole).toInt() : m_current;
                         if (page != m_current)
                             PostMessage(GetSafeHwnd(), kShowPage, static_cast<WPARAM>(page), 0);
                     });
    return side;
}

QWidget* CEditorPrefsDialog::BuildButtons()
{
    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins({});
    m_note = new QLabel;
    m_note->setWordWrap(true);
    row->addWidget(m_note, 1);
    const auto add = [&](UINT number, const char* label) {
        auto* button = AddControl(number, new QPushButton(Texts::tr(label)));
        row->addWidget(button);
        return button;
    };
    add(IDOK, QT_TRANSLATE_NOOP("EditorPrefsDialog", "&Ok"));
    add(IDCANCEL, QT_TRANSLATE_NOOP("EditorPrefsDialog", "&Cancel"));
    add(id::Apply, QT_TRANSLATE_NOOP("EditorPrefsDialog", "&Apply"))->setEnabled(false);
    IPreferencesHost* host = zncoreeditor::GetPreferencesHost();
    add(id::Help, QT_TRANSLATE_NOOP("EditorPrefsDialog", "&Help"))
        ->setEnabled(host && host->HasHelp());
    return bar;
}

void CEditorPrefsDialog::OnBuild(QWidget* window)
{
    window->setWindowTitle(m_title);
    auto* column = new QVBoxLayout(window);
    auto* halves = new QSplitter;
    halves->setChildrenCollapsible(false);
    halves->addWidget(BuildTree());
    auto* right = new QWidget;
    auto* rows = new QVBoxLayout(right);
    rows->setContentsMargins({});
    m_caption = AddControl(id::Caption, new CEditorPrefsStatic);
    m_frame = AddControl(id::Frame, new QStackedWidget);
    rows->addWidget(m_caption);
    rows->addWidget(m_frame, 1);
    halves->addWidget(right);
    halves->setStretchFactor(1, 1);
    column->addWidget(halves, 1);
    column->addWidget(BuildButtons());
    // Inside of the dialog, which then comes back to it whenever another button lets go of Enter.
    GetDlgItem<QPushButton>(IDOK)->setDefault(true);
    constexpr int kTreeLetters = 30;
    constexpr int kLetters = 120;
    constexpr int kLines = 42;
    const QFontMetrics metrics = window->fontMetrics();
    halves->setSizes({metrics.averageCharWidth() * kTreeLetters,
                      metrics.averageCharWidth() * (kLetters - kTreeLetters)});
    constexpr QSize kFrame(10, 40); // at most, of a window manager's
    window->resize(QSize(metrics.averageCharWidth() * kLetters, metrics.height() * kLines)
                       .boundedTo(window->screen()->availableSize() - kFrame));
}

void CEditorPrefsDialog::AddPage(CEditorPrefsSubDlg& page, UINT templateId, const QString& title,
                                 CEditorPrefsSubDlg* parent)
{
    QTreeWidgetItem* around = parent ? m_items.value(parent) : m_tree->invisibleRootItem();
    auto* item = new QTreeWidgetItem(around, {title});
    item->setData(0, Qt::UserRole, static_cast<int>(m_pages.size()));
    m_items.insert(&page, item);
    m_pages.push_back({&page, templateId, title, parent});
}

void CEditorPrefsDialog::AddLanguage(int language)
{
    const auto at = static_cast<std::size_t>(language);
    CEditorPref& editor = *m_editorPages[at];
    AddPage(editor, id::EditorPage, m_languages.GetLanguageName(language));
    if (language != kPlainLanguage)
        AddPage(*m_codingPages[at], id::CodingPage, Texts::tr("Code"), &editor);
    AddPage(*m_colorPages[at], id::ColorPage, Texts::tr("Color"), &editor);
    AddPage(*m_fontPages[at], id::FontPage, Texts::tr("Font"), &editor);
    if (language != kPlainLanguage)
        AddPage(*m_keywordPages[at], id::KeywordPage, Texts::tr("Keywords"), &editor);
    CSyntaxFile* file = m_languages.GetSyntaxFile(language);
    for (CEditorPrefsSubDlg* page : {static_cast<CEditorPrefsSubDlg*>(&editor),
                                     static_cast<CEditorPrefsSubDlg*>(m_codingPages[at].get()),
                                     static_cast<CEditorPrefsSubDlg*>(m_colorPages[at].get()),
                                     static_cast<CEditorPrefsSubDlg*>(m_fontPages[at].get()),
                                     static_cast<CEditorPrefsSubDlg*>(m_keywordPages[at].get())})
        page->SetSyntaxFile(file);
}

bool CEditorPrefsDialog::OnInitDialog()
{
    AddPage(m_mainPage, id::MainPage, Texts::tr("Colors and Fonts"));
    m_mainPage.SetConfigFile(&m_config);
    // A list that tells a count beyond what it names has no more pages than names.
    m_languageCount = std::clamp(m_config.GetLanguageCount(), 0, m_languages.GetLanguageCount());
    for (int language = 0; language < m_languageCount; ++language) {
        m_editorPages.push_back(std::make_unique<CEditorPref>());
        m_colorPages.push_back(std::make_unique<CColorPref>());
        m_fontPages.push_back(std::make_unique<CFontPref>());
        m_keywordPages.push_back(std::make_unique<CKeywordPref>());
        m_codingPages.push_back(std::make_unique<CCodingPref>());
    }
    for (int language = 1; language < m_languageCount; ++language) {
        if (language != kNoPagesLanguage)
            AddLanguage(language);
    }
    m_tree->expandAll();
    ShowPage(0);
    m_tree->setFocus();
    return false;
}

// Behind the tree and before the buttons, wherever widgets that are made late would come.
void CEditorPrefsDialog::TakeIntoTabOrder(QWidget& page)
{
    QWidget* last = m_settings;
    for (QWidget* control : page.findChildren<QWidget*>()) {
        if (control->isWindow() || control->window() != page.window() ||
            !(control->focusPolicy() & Qt::TabFocus))
            continue;
        QWidget::setTabOrder(last, control);
        last = control;
    }
}

void CEditorPrefsDialog::ShowPage(int page)
{
    if (page < 0 || page >= static_cast<int>(m_pages.size()))
        return;
    const PageRecord& record = m_pages[static_cast<std::size_t>(page)];
    if (!record.page->GetSafeHwnd()) {
        record.page->CreateInside(m_frame);
        SetDlgCtrlID(record.page->GetSafeHwnd(), record.templateId);
        m_frame->addWidget(InScrollArea(record.page->GetSafeHwnd()));
        TakeIntoTabOrder(*record.page->GetSafeHwnd());
    }
    m_current = page;
    m_frame->setCurrentWidget(AreaOf(*record.page->GetSafeHwnd()));
    const QString around =
        record.parent ? m_items.value(record.parent)->text(0) + QStringLiteral(" – ") : QString();
    m_caption->SetTitle(record.title);
    m_caption->setToolTip(around + record.title);
    m_tree->setCurrentItem(m_items.value(record.page));
}

int CEditorPrefsDialog::CurrentLanguage() const
{
    const CEditorPrefsSubDlg* page = m_pages[static_cast<std::size_t>(m_current)].page;
    for (int language = 0; language < m_languageCount; ++language) {
        const auto at = static_cast<std::size_t>(language);
        const CEditorPrefsSubDlg* const own[] = {m_editorPages[at].get(), m_codingPages[at].get(),
                                                 m_colorPages[at].get(), m_fontPages[at].get(),
                                                 m_keywordPages[at].get()};
        if (std::ranges::find(own, page) != std::end(own))
            return language;
    }
    return -1;
}

// The windows of the pages go, and with them what was not applied; each is made again when it is
// shown.
void CEditorPrefsDialog::ReloadPages()
{
    for (const PageRecord& record : m_pages) {
        QWidget* window = record.page->GetSafeHwnd();
        if (!window)
            continue;
        QWidget* area = AreaOf(*window);
        record.page->DestroyWindow();
        delete area;
        record.page->SetUnchanged();
    }
    SetChanged(false);
    ShowPage(m_current);
}

// A page is shown with the language around it, and a language with all its pages.
void CEditorPrefsDialog::Filter(const QString& word)
{
    bool isAny = false;
    for (int top = 0; top < m_tree->topLevelItemCount(); ++top) {
        QTreeWidgetItem* language = m_tree->topLevelItem(top);
        const bool isMeant = language->text(0).contains(word, Qt::CaseInsensitive);
        bool hasMeant = false;
        for (int child = 0; child < language->childCount(); ++child) {
            QTreeWidgetItem* page = language->child(child);
            const bool fits = isMeant || page->text(0).contains(word, Qt::CaseInsensitive);
            page->setHidden(!fits);
            hasMeant = hasMeant || fits;
        }
        language->setHidden(!isMeant && !hasMeant);
        isAny = isAny || isMeant || hasMeant;
    }
    m_none->setVisible(!isAny);
    m_filter->setAccessibleDescription(isAny ? QString() : m_none->text());
    m_tree->scrollToItem(m_tree->currentItem());
}

bool CEditorPrefsDialog::TakePages()
{
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        CEditorPrefsSubDlg& page = *m_pages[i].page;
        if (page.GetSafeHwnd() && !page.UpdateData()) {
            ShowPage(static_cast<int>(i));
            return false;
        }
    }
    return true;
}

// News of a page are on their way for a moment before the button hears of them.
bool CEditorPrefsDialog::HasChanges() const
{
    return GetDlgItem(id::Apply)->isEnabled() ||
           std::ranges::any_of(m_pages,
                               [](const PageRecord& record) { return record.page->HasChanges(); });
}

void CEditorPrefsDialog::SetChanged(bool changed)
{
    GetDlgItem(id::Apply)->setEnabled(changed);
}

void CEditorPrefsDialog::WritePages()
{
    m_written.clear();
    m_notWritten.clear();
    m_mainPage.Apply();
    for (int language = 0; language < m_languageCount; ++language) {
        const auto at = static_cast<std::size_t>(language);
        m_editorPages[at]->Apply();
        if (language != 0)
            m_codingPages[at]->Apply();
        m_colorPages[at]->Apply();
        m_fontPages[at]->Apply();
        if (language != 0)
            m_keywordPages[at]->Apply();
        CSyntaxFile* file = m_languages.GetSyntaxFile(language);
        if (!file || language == kNoPagesLanguage || !file->GetModified())
            continue;
        m_written.push_back(language);
        if (file->Save())
            continue;
        file->SetModified(true); // the file may have been written in part; it is tried again
        m_notWritten << file->GetCustomFilename();
    }
}

void CEditorPrefsDialog::WriteFiles()
{
    WritePages();
    m_configWritten = m_config.GetModified();
    if (m_configWritten && !m_config.Save())
        m_notWritten << (m_config.GetUserCopy().isEmpty() ? m_config.GetFilename()
                                                          : m_config.GetUserCopy());
    RebindOpenEditors(m_written, m_configWritten);
    if (IPreferencesHost* host = zncoreeditor::GetPreferencesHost())
        host->OnApplied();
}

// Whether the host wants the dialog to stay open.
bool CEditorPrefsDialog::TellFailures()
{
    IPreferencesHost* host = zncoreeditor::GetPreferencesHost();
    return !m_notWritten.isEmpty() && host && host->OnNotWritten(GetSafeHwnd(), m_notWritten);
}

bool CEditorPrefsDialog::Apply(bool closing)
{
    if (!TakePages())
        return false;
    if (HasChanges()) {
        WriteFiles();
        if (TellFailures())
            return false;
        for (const PageRecord& record : m_pages)
            record.page->SetUnchanged();
        SetChanged(false);
        m_note->setText(Texts::tr("The changes are in force. Cancel does not take them back."));
    }
    if (closing) {
        for (const PageRecord& record : m_pages)
            record.page->EndDialog(IDOK);
    }
    return true;
}

void CEditorPrefsDialog::OnOK()
{
    if (Apply(true))
        EndDialog(IDOK);
}

void CEditorPrefsDialog::OnHelp()
{
    if (IPreferencesHost* host = zncoreeditor::GetPreferencesHost())
        host->OnHelp(GetSafeHwnd());
}

// Escape takes back what was sought, and closes nothing: what was set up over several pages would
// be gone by a slip.
int CEditorPrefsDialog::PreTranslateMessage(MSG* message)
{
    if (message->message == WM_KEYDOWN && message->wParam == Qt::Key_Escape) {
        const QWidget* focus = QApplication::focusWidget();
        if (focus == m_filter || focus == m_tree)
            m_filter->clear();
        return 1;
    }
    return CDialog::PreTranslateMessage(message);
}

const MessageMap& CEditorPrefsDialog::GetMessageMap() const
{
    static constexpr MessageEntry kEntries[] = {
        {kPageChanged,
         [](CWnd& target, WPARAM, LPARAM) -> LRESULT {
             auto& dialog = static_cast<CEditorPrefsDialog&>(target);
             dialog.SetChanged(dialog.HasChanges());
             return 0;
         }},
        {kShowPage,
         [](CWnd& target, WPARAM page, LPARAM) -> LRESULT {
             static_cast<CEditorPrefsDialog&>(target).ShowPage(static_cast<int>(page));
             return 0;
         }},
    };
    static const MessageMap kMap{&CDialog::GetMessageMap(), kEntries};
    return kMap;
}

const CommandMap& CEditorPrefsDialog::GetCommandMap() const
{
    using Self = CEditorPrefsDialog;
    static constexpr CommandEntry kCommands[] = {
        {id::Apply, [](CCmdTarget& t) { static_cast<Self&>(t).Apply(false); }},
        {id::Help, [](CCmdTarget& t) { static_cast<Self&>(t).OnHelp(); }},
    };
    static const CommandMap kMap{&CDialog::GetCommandMap(), kCommands, {}};
    return kMap;
}
