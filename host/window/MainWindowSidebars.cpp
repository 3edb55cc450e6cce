// SPDX-License-Identifier: GPL-3.0-or-later
// MainWindow: the outline of the script in front, and the folder beside it.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "host/files/LanguageMemory.h"
#include "host/files/Prompts.h"
#include "host/folder/FolderPane.h"
#include "host/outline/OutlinePane.h"
#include "host/outline/SymbolPicker.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/script/ScriptTabs.h"
#include "host/script/ScriptView.h"
#include "host/window/MainWindow.h"
#include "host/window/Workbench.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>
#include <QTreeView>

#include <chrono>

namespace {

constexpr std::chrono::milliseconds kRest(150);
constexpr std::chrono::milliseconds kPart(500); // between two looks at a text that is being read
// Units. A longer text is not read for each rest: its index is asked, which knows what the script
// creates, and neither columns nor steps.
constexpr long kReadWhole = 500'000;

} // namespace

QString MainWindow::LanguageOf(const ScriptDoc& script)
{
    const CFileTypeManager& registry = *zncoreeditor::GetFileTypeManager();
    const int language = script.Language();
    const bool isKnown = language >= 0 && language < registry.GetLanguageCount();
    return isKnown ? registry.GetLanguageName(language) : QString();
}

void MainWindow::MakeLanguageDefault()
{
    if (const ScriptFrame* frame = CurrentFrame())
        languages::SetDefault(LanguageOf(*frame->Script()));
}

void MainWindow::BuildSidebars()
{
    m_outline = new OutlinePane(this);
    m_folder = new FolderPane(this);
    addDockWidget(Qt::LeftDockWidgetArea, m_outline);
    addDockWidget(Qt::LeftDockWidgetArea, m_folder);
    m_outline->hide();
    m_folder->hide();
    m_outline->toggleViewAction()->setObjectName(QStringLiteral("outline"));
    m_folder->toggleViewAction()->setObjectName(QStringLiteral("folder"));
    for (const QDockWidget* pane :
         {static_cast<QDockWidget*>(m_outline), static_cast<QDockWidget*>(m_folder)})
        connect(pane->toggleViewAction(), &QAction::triggered, this, &MainWindow::ShareSide);
    m_outlineTimer = new QTimer(this);
    m_outlineTimer->setSingleShot(true);
    connect(m_outlineTimer, &QTimer::timeout, this, &MainWindow::UpdateOutline);
    connect(m_outline, &OutlinePane::visibilityChanged, this, &MainWindow::UpdateOutlineSoon);
    connect(m_outline, &OutlinePane::Chosen, this, &MainWindow::SelectInScript);
    connect(m_folder, &FolderPane::Chosen, this,
            [this](const QString& path) { m_app.OpenDocumentFile(path); });
    connect(m_folder, &FolderPane::ChosenBehind, this, &MainWindow::OpenBehind);
    connect(m_folder, &FolderPane::FolderWanted, this, &MainWindow::OpenFolder);
    connect(m_folder, &FolderPane::FolderChanged, this, &MainWindow::KeepSessionSoon);
    connect(m_folder, &FolderPane::NewScriptWanted, this, [this](const QString& folder) {
        m_app.NewScript();
        if (const ScriptFrame* frame = CurrentFrame())
            frame->Script()->SetFolder(folder);
    });
}

// Who opens one beside the other wants to see both.
void MainWindow::ShareSide()
{
    if (m_outline->isVisible() && m_folder->isVisible())
        resizeDocks({m_outline, m_folder}, {1, 1}, Qt::Vertical); // as parts of what there is
}

void MainWindow::OpenFolder()
{
    const ScriptFrame* frame = CurrentFrame();
    const QString path = frame ? frame->Script()->GetPathName() : QString();
    QString place = m_folder->Folder();
    if (place.isEmpty())
        place = path.isEmpty() ? QDir::currentPath() : QFileInfo(path).absolutePath();
    const QString folder = GetPrompts().FolderToShow(this, place);
    if (!folder.isEmpty())
        ShowFolder(folder);
}

void MainWindow::ShowFolder(const QString& path)
{
    m_folder->SetFolder(path);
    if (!m_folder->isVisible()) {
        m_folder->show();
        ShareSide();
    }
    m_folder->raise();
    m_folder->ListArea()->setFocus();
}

// Whoever opens several files in a row stays where they are chosen.
void MainWindow::OpenBehind(const QString& path)
{
    const QPointer<QWidget> front = m_tabs->currentWidget();
    const QPointer<QWidget> focus = QApplication::focusWidget();
    m_app.OpenDocumentFile(path);
    if (front && m_tabs->indexOf(front) >= 0)
        m_tabs->setCurrentWidget(front);
    if (focus)
        focus->setFocus();
}

void MainWindow::UpdateOutlineSoon()
{
    if (m_outline->isVisible())
        m_outlineTimer->start(kRest);
}

// A caret that has moved over the same text changes the list's current row alone.
void MainWindow::UpdateOutline()
{
    const ScriptFrame* frame = CurrentFrame();
    if (!frame) {
        m_outline->ShowNothing({});
        m_outlined = 0;
        return;
    }
    const QString language = LanguageOf(*frame->Script());
    if (frame->Editor().GetLength(1) > kReadWhole && HasSymbols(language)) {
        OutlineByIndex(*frame->Script(), language);
    } else {
        const QString text = HasSymbols(language) ? frame->Editor().GetText() : QString();
        const std::size_t outlined = qHashMulti(1, text, language);
        if (std::exchange(m_outlined, outlined) != outlined)
            ShowOutline(SymbolsOf(text, language), language);
    }
    CZNCoreEditorControlEx& editor = frame->Editor();
    const int line = editor.GetCurLineNumber();
    m_outline->ShowPlace(editor.GetCurrentPos(1), editor.PositionFromLine(line, 1),
                         editor.GetLineEndPosition(line, 1));
}

// As far as the text has been read by now, and again until it is.
void MainWindow::OutlineByIndex(ScriptDoc& script, const QString& language)
{
    completion::LiveIndex& names = script.Names();
    const std::size_t outlined = qHashMulti(2, &script, language);
    const bool isOther = std::exchange(m_outlined, outlined) != outlined;
    if (!isOther && names.IsDone())
        return;
    ShowOutline(SymbolsOf(names.Created()), language);
    if (!names.IsDone())
        m_outlineTimer->start(kPart);
}

// The index has followed a change, and the rest behind it is over.
void MainWindow::OnNamesRead(const ScriptDoc& script)
{
    const ScriptFrame* frame = CurrentFrame();
    if (!frame || frame->Script() != &script)
        return;
    m_outlined = 0;
    if (!m_outline->isVisible())
        return;
    m_outlineTimer->stop();
    UpdateOutline();
}

void MainWindow::ShowOutline(std::vector<Symbol> symbols, const QString& language)
{
    if (!symbols.empty())
        m_outline->Show(std::move(symbols));
    else if (HasSymbols(language))
        m_outline->ShowNothing(tr("The script creates nothing that could be listed: no tables, "
                                  "views, procedures, and so on."));
    else
        m_outline->ShowNothing(tr("There is no outline for %1. The field with the language in the "
                                  "status bar changes it.")
                                   .arg(language));
}

// A name whose end is not known is a word, or stands in quotes.
void MainWindow::SelectInScript(long start, long end)
{
    const ScriptFrame* frame = CurrentFrame();
    if (!frame)
        return;
    const long known = end > start ? end : frame->Editor().WordEndPosition(start, 1, 1);
    frame->View()->SelectRange(start, known);
}

void MainWindow::GoToSymbol()
{
    const ScriptFrame* frame = CurrentFrame();
    if (!frame)
        return;
    const QString language = LanguageOf(*frame->Script());
    const bool isLong = frame->Editor().GetLength(1) > kReadWhole && HasSymbols(language);
    auto* picker = new SymbolPicker(isLong ? SymbolsOf(frame->Script()->Names().CreatedInAll())
                                           : SymbolsOf(frame->Editor().GetText(), language),
                                    this);
    connect(picker, &SymbolPicker::Chosen, this, &MainWindow::SelectInScript);
    picker->move(mapToGlobal(QPoint((width() - picker->width()) / 2, menuBar()->height())));
    picker->show();
}
