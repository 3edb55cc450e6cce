// SPDX-License-Identifier: GPL-3.0-or-later
// The face's actions, its context menu and its pages.
#include "control/EngineRecords.h"
#include "editing/face/Private.h"
#include "editing/hands/Hands.h"
#include "editing/operations/Macro.h"
#include "editing/operations/PrintStyle.h"
#include "platform/windows/ActionUI.h"
#include "platform/windows/DeviceContext.h"

#include <QAction>
#include <QCoreApplication>
#include <QInputDialog>
#include <QKeySequence>
#include <QMenu>
#include <QMetaMethod>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

struct BasicRow
{
    UINT number; // of ControlCommands.def
    const char* name;
    const char* text;
    QKeySequence::StandardKey key;
};

// clang-format off
constexpr BasicRow kBasics[] = {
    {57643, "undo",             QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "&Undo"),              QKeySequence::Undo},
    {57644, "redo",             QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "&Redo"),              QKeySequence::Redo},
    {57635, "cut",              QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Cu&t"),               QKeySequence::Cut},
    {57634, "copy",             QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "&Copy"),              QKeySequence::Copy},
    {57637, "paste",            QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "&Paste"),             QKeySequence::Paste},
    {57632, "delete",           QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "&Delete"),            QKeySequence::UnknownKey},
    {57642, "selectAll",        QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Select &All"),        QKeySequence::SelectAll},
    {54034, "indent",           QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "&Indent"),            QKeySequence::UnknownKey},
    {54035, "outdent",          QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "&Outdent"),           QKeySequence::UnknownKey},
    {54042, "upperCase",        QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "U&pper Case"),        QKeySequence::UnknownKey},
    {54039, "lowerCase",        QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "&Lower Case"),        QKeySequence::UnknownKey},
    {53960, "matchBrace",       QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Match Bra&ce"),       QKeySequence::UnknownKey},
    {54057, "toggleBookmark",   QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Toggle &Bookmark"),   QKeySequence::UnknownKey},
    {54056, "nextBookmark",     QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "&Next Bookmark"),     QKeySequence::UnknownKey},
    {54058, "previousBookmark", QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Previous Boo&kmark"), QKeySequence::UnknownKey},
    {54059, "clearBookmarks",   QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Clear All Bookmarks"),   QKeySequence::UnknownKey},
    {54037, "commentOut",       QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Co&mment Out"),          QKeySequence::UnknownKey},
    {54041, "uncomment",        QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "&Uncomment"),            QKeySequence::UnknownKey},
    {54001, "increaseNumber",   QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Increase Number"),       QKeySequence::UnknownKey},
    {54002, "decreaseNumber",   QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Decrease Number"),       QKeySequence::UnknownKey},
    {57636, "find",             QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "&Find..."),              QKeySequence::Find},
    {57640, "findNext",         QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Find &Next"),            QKeySequence::FindNext},
    {57641, "replace",          QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "&Replace..."),           QKeySequence::Replace},
    {54038, "insertFile",       QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Insert &File..."),       QKeySequence::UnknownKey},
    {54071, "lineEndsCrLf",     QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Convert Line Ends to CR+LF (Windows)"), QKeySequence::UnknownKey},
    {54072, "lineEndsLf",       QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Convert Line Ends to LF (Unix)"), QKeySequence::UnknownKey},
    {54073, "lineEndsCr",       QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Convert Line Ends to CR (Mac)"), QKeySequence::UnknownKey},
    {54033, "preferences",      QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Editor and Language &Preferences..."), QKeySequence::Preferences},
    {53962, "zoomIn",           QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "&Zoom In"),           QKeySequence::ZoomIn},
    {53963, "zoomOut",          QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Zoom O&ut"),          QKeySequence::ZoomOut},
    {53964, "zoomDefault",      QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "Original &Size"),     QKeySequence::UnknownKey},
    {54036, "lineNumbers",      QT_TRANSLATE_NOOP("ZNCoreEditorWidget", "&Line Numbers"),      QKeySequence::UnknownKey},
};
// clang-format on

// The names of a right click's menu; null stands for a line between groups.
constexpr const char* kMenu[] = {"undo",   "redo",  nullptr,     "cut",   "copy",         "paste",
                                 "delete", nullptr, "selectAll", nullptr, "toggleComment"};

} // namespace

void ZNCoreEditorWidget::Private::MakeCommands()
{
    const HWND window = m_control->GetSafeHwnd();
    const auto add = [&](const char* name, const QString& text, UINT number,
                         const QKeySequence& key) {
        auto* action = new QAction(text, &q);
        action->setObjectName(QString::fromLatin1(name));
        action->setShortcut(key);
        SetCommand(*action, number, window);
        m_commands += action;
    };
    for (const BasicRow& row : kBasics)
        add(row.name, ZNCoreEditorWidget::tr(row.text), row.number, QKeySequence(row.key));
    auto* goTo = new QAction(ZNCoreEditorWidget::tr("&Go to Line..."), &q);
    goTo->setObjectName(QStringLiteral("goToLine"));
    goTo->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_G));
    connect(goTo, &QAction::triggered, &q, [this] { AskForLine(); });
    m_commands += goTo;
    const auto addMacro = [&](const char* name, const QString& text, Qt::Key key) {
        auto* action = new QAction(text, &q);
        action->setObjectName(QString::fromLatin1(name));
        action->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | key));
        m_commands += action;
        return action;
    };
    QAction* record = addMacro("recordMacro", ZNCoreEditorWidget::tr("Record &Macro"), Qt::Key_R);
    record->setCheckable(true);
    connect(record, &QAction::triggered, &q, [this](bool on) {
        const Lifetime alive(*this);
        Record(on);
        if (alive)
            UpdateCommands();
    });
    QAction* play = addMacro("playMacro", ZNCoreEditorWidget::tr("Pla&y Macro"), Qt::Key_P);
    connect(play, &QAction::triggered, &q, [this] { q.playMacro(); });
    auto* map = new QAction(ZNCoreEditorWidget::tr("&Document Map"), &q);
    map->setObjectName(QStringLiteral("documentMap"));
    map->setCheckable(true);
    connect(map, &QAction::triggered, &q, &ZNCoreEditorWidget::setDocumentMapVisible);
    m_commands += map;
    for (const HandRow& row : Hands())
        add(row.name, HandText(row.text), row.number, QKeySequence(row.key | row.modifiers));
    for (const QAction* action : std::as_const(m_commands)) {
        if (action->objectName() == QLatin1String("toggleBookmark") ||
            action->objectName() == QLatin1String("clearBookmarks"))
            connect(action, &QAction::triggered, &q, &ZNCoreEditorWidget::bookmarksChanged);
    }
    UpdateCommands();
}

// What has no number that a control would know of.
void ZNCoreEditorWidget::Private::UpdateCommands()
{
    if (m_commands.isEmpty())
        return;
    UpdateActions(m_commands, *m_control);
    for (QAction* action : std::as_const(m_commands)) {
        if (action->objectName() == QLatin1String("recordMacro")) {
            action->setChecked(q.isRecording());
            action->setEnabled(q.isRecording() || !IsMacroRecording());
        } else if (action->objectName() == QLatin1String("playMacro")) {
            action->setEnabled(q.hasMacro() && !q.isReadOnly());
        } else if (action->objectName() == QLatin1String("documentMap")) {
            action->setChecked(q.isDocumentMapVisible());
        }
    }
}

// People count lines from 1.
void ZNCoreEditorWidget::Private::AskForLine()
{
    const Lifetime alive(*this);
    bool isChosen = false;
    const int line = QInputDialog::getInt(&q, ZNCoreEditorWidget::tr("Go to Line"),
                                          ZNCoreEditorWidget::tr("Line:"), q.cursorLine() + 1, 1,
                                          q.lineCount(), 1, &isChosen);
    if (alive && isChosen)
        q.setCursorPosition(line - 1, 0);
}

QList<QAction*> ZNCoreEditorWidget::commands() const
{
    if (!d->IsInItsThread())
        return {};
    if (d->m_commands.isEmpty() && d->m_control->GetSafeHwnd())
        d->MakeCommands();
    return d->m_commands;
}

QAction* ZNCoreEditorWidget::command(const QString& name) const
{
    const QList<QAction*> all = commands();
    const auto found = std::ranges::find(all, name, &QAction::objectName);
    return found != all.end() ? *found : nullptr;
}

QMenu* ZNCoreEditorWidget::createStandardContextMenu()
{
    if (!d->IsInItsThread())
        return nullptr;
    auto* menu = new QMenu(this);
    commands();
    d->UpdateCommands();
    for (const char* name : kMenu) {
        if (QAction* action = name ? command(QString::fromLatin1(name)) : nullptr)
            menu->addAction(action);
        else
            menu->addSeparator();
    }
    // Its own text belongs into a menu of what may be selected.
    if (QAction* action = command(QStringLiteral("selectStatement")))
        menu->addAction(tr("Select &Statement"), action, &QAction::trigger);
    return menu;
}

// A menu that a key opens stands at the caret.
int ZNCoreEditorWidget::Private::OnBeforeContextMenu(CWnd* /*window*/, CPoint point)
{
    QPoint place(static_cast<int>(point.x), static_cast<int>(point.y));
    if (place == QPoint(-1, -1)) {
        const long caret = m_control->GetCurrentPos(1);
        place = m_control->GetSafeHwnd()->mapToGlobal(QPoint(
            m_control->PointXFromPosition(caret, 1), m_control->PointYFromPosition(caret, 1)));
    }
    if (!q.isSignalConnected(QMetaMethod::fromSignal(&ZNCoreEditorWidget::contextMenuAboutToShow)))
        return 0;
    QMenu* menu = q.createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QPointer<QMenu> isThere(menu);
    Q_EMIT q.contextMenuAboutToShow(menu);
    if (isThere)
        menu->popup(place);
    return 1;
}

bool ZNCoreEditorWidget::print(QPagedPaintDevice* device)
{
    if (!d->IsInItsThread())
        return false;
    QPainter painter;
    if (!device || length() == 0 || !painter.begin(device))
        return false;
    CZNCoreEditorControlEx& control = *d->m_control;
    CDC dc(painter);
    dc.m_bPrinting = true;
    RangeToFormat record = PrintRecord(&dc, PrintableArea(dc));
    ApplyPrintColours(control);
    control.SetPrintWrapMode(1, 1);
    const int end = length();
    for (int start = 0; start < end;) {
        if (start > 0 && !device->newPage())
            return false;
        record.chrg = {start, end};
        const auto next = static_cast<int>(PrintPage(control, record));
        if (next <= start) // a page that holds no character
            break;
        start = next;
    }
    control.FormatRange(0, nullptr, 1);
    return painter.end();
}
