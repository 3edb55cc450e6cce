// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/expanded/ExpandedScript.h"

#include "control/ErrorInfo.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "editing/language/Library.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptView.h"
#include "platform/base/Units.h"
#include "preprocess/CompileManager.h"
#include "preprocess/Leftovers.h"

#include <QAction>
#include <QEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QShortcut>
#include <QSplitter>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int kLineColumn = 0;
constexpr int kTextColumn = 1;
constexpr int kLineRole = Qt::UserRole;
constexpr int kOwner = 1; // of the marks

} // namespace

ExpandedScript::ExpandedScript(QWidget* parent)
    : QDockWidget(parent), m_editor(new ZNCoreEditorWidget(this)), m_errors(new QTreeWidget(this)),
      m_hint(new QLabel(this))
{
    setObjectName(QStringLiteral("expandedScript"));
    setWindowTitle(tr("Expanded Script"));
    m_editor->setObjectName(QStringLiteral("expandedText"));
    m_editor->setAccessibleName(tr("Expanded script"));
    m_hint->setObjectName(QStringLiteral("includeHint"));
    m_hint->setWordWrap(true);
    m_hint->setMargin(4);
    m_hint->hide();
    m_errors->setObjectName(QStringLiteral("includeErrors"));
    m_errors->setAccessibleName(tr("Problems of the expanded script"));
    m_errors->setRootIsDecorated(false);
    m_errors->setHeaderLabels({tr("Line"), tr("Problem")});
    m_errors->header()->setSectionResizeMode(kLineColumn, QHeaderView::ResizeToContents);

    auto* bar = new QToolBar(this);
    const auto add = [&](const char* name, const QString& text, void (ExpandedScript::*run)()) {
        QAction* action = bar->addAction(text, this, run);
        action->setObjectName(QLatin1String(name));
        action->setEnabled(false);
        return action;
    };
    m_goToSource = add("goToSource", tr("Go to Source"), &ExpandedScript::GoToSource);
    m_putBack = add("putOriginalBack", tr("Put Original Back"), &ExpandedScript::PutOriginalBack);
    auto* splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(m_editor);
    splitter->addWidget(m_errors);
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({400, 100});
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(bar);
    layout->addWidget(splitter);
    layout->addWidget(m_hint);
    setWidget(content);

    // The text is read-only, where Enter has nothing else to do.
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(key, m_editor, this, &ExpandedScript::GoToSource);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    }
    connect(m_editor, &ZNCoreEditorWidget::notified, this, &ExpandedScript::OnNotified);
    connect(m_errors, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* item) {
        GoToSourceOf(item->data(kLineColumn, kLineRole).value<long>());
    });
}

// The editor goes after this part of the pane does, and tells of it.
ExpandedScript::~ExpandedScript()
{
    m_editor->disconnect(this);
}

QWidget* ExpandedScript::TextArea() const
{
    return m_editor;
}

QWidget* ExpandedScript::ErrorArea() const
{
    return m_errors;
}

ScriptDoc* ExpandedScript::Script() const
{
    return m_script && !m_script->IsClosed() ? m_script.data() : nullptr;
}

// The scripts have their new scheme in front of the palette or behind it.
void ExpandedScript::changeEvent(QEvent* event)
{
    QDockWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    const auto follow = [this] {
        if (ScriptView* view = m_script ? m_script->FirstView() : nullptr)
            m_editor->setScheme(view->GetCoreEditorControlRef().SchemeName());
    };
    QMetaObject::invokeMethod(this, follow, Qt::QueuedConnection);
}

void ExpandedScript::Expand(ScriptDoc& doc, CZNCoreEditorControlEx& editor)
{
    disconnect(m_changes);
    m_changes = connect(&doc, &ScriptDoc::TextChanged, this, &ExpandedScript::GrowStale);
    m_isStale = false;
    m_script = &doc;
    Caption(tr("Expanded Script"));
    m_editor->setScheme(editor.SchemeName());
    m_editor->setLanguage(doc.Language());
    CZNCoreEditorControlEx& control = m_editor->control();
    control.SetCarefulFiles(true);
    control.SetReadOnly(0, 1);
    const QString path = doc.GetPathName();
    control.SetDatasourceSearchPath(path.isEmpty() ? path : QFileInfo(path).absolutePath());
    control.SetEOLMode(editor.GetEOLMode(1), 1);
    control.SetUndoCollection(0, 1); // nobody has changed these lines
    const QString script = editor.GetText();
    m_text = qHash(script);
    control.SetText(Units(script), 1);
    QString expanded;
    control.GetWindowTextW(expanded);
    control.SetUndoCollection(1, 1);
    control.EmptyUndoBuffer(1);
    control.SetReadOnly(1, 1);
    control.GotoPos(0, 1);
    control.SetScrollWidth(1, 1);
    m_map = zncoreeditor::GetCompileManager()->GetSourceMap();
    m_goToSource->setEnabled(true);
    m_putBack->setEnabled(control.GetIncludeOrDefineDirectivesFound());
    ListErrors();
    ListLeftovers();
    const bool hasProblems = m_errors->topLevelItemCount() > 0;
    m_errors->setVisible(hasProblems);
    if (!hasProblems && expanded == script)
        ShowHint(tr("Nothing was expanded. #include, #define and &&NAME are; the lines by which "
                    "client programs read files (\\i, @, :r) stay as they are."));
}

void ExpandedScript::ShowHint(const QString& hint)
{
    m_hint->setText(hint);
    m_hint->show();
}

bool ExpandedScript::Shows(const ScriptDoc& script, CZNCoreEditorControlEx& editor) const
{
    return isVisible() && !m_isStale && Script() == &script && m_text == qHash(editor.GetText());
}

void ExpandedScript::Caption(const QString& what)
{
    setWindowTitle(m_script ? what + QStringLiteral(" – ") + m_script->Name() : what);
}

// Lines that have moved since would lead to others.
void ExpandedScript::GrowStale()
{
    if (m_isStale)
        return;
    m_isStale = true;
    m_goToSource->setEnabled(false);
    setWindowTitle(tr("%1 (out of date)").arg(windowTitle()));
    ShowHint(tr("The script was changed since. Tools > Expanded Script shows it as it is."));
}

void ExpandedScript::PutOriginalBack()
{
    CZNCoreEditorControlEx& control = m_editor->control();
    control.SetReadOnly(0, 1);
    control.SetOriginalScript();
    control.ErrorDeleteAll(kOwner, problem::kAny, 1);
    control.SetReadOnly(1, 1);
    m_map.Clear();
    m_errors->clear();
    m_errors->hide();
    m_hint->hide();
    m_putBack->setEnabled(false);
    const bool wasStale = std::exchange(m_isStale, false);
    Caption(tr("Original Script"));
    if (wasStale)
        GrowStale();
}

void ExpandedScript::ListErrors()
{
    m_errors->clear();
    m_hint->hide();
    const auto errors = m_editor->control().GetIncludeDirectiveErrorMessageAndLine();
    for (const auto& [line, message] : errors)
        ListLine(line, message, QStyle::SP_MessageBoxCritical);
    if (!errors.empty())
        ShowHint(tr("Files are looked for beside the script, and in the folders that Tools > "
                    "Options names."));
}

// Marked in the text too, which has no marks of an expansion before.
void ExpandedScript::ListLeftovers()
{
    CZNCoreEditorControlEx& control = m_editor->control();
    control.ErrorDeleteAll(kOwner, problem::kAny, 1);
    for (const Leftover& found : FindLeftovers(control)) {
        ListLine(control.LineFromPosition(found.start, 1), found.text,
                 QStyle::SP_MessageBoxWarning);
        ErrorInfo record;
        record.nStart = found.start;
        record.nEnd = found.end;
        record.nKind = problem::Semantic;
        record.nSeverity = problem::Warning;
        record.SetText(Units(found.text));
        control.ErrorAdd(kOwner, &record, 1);
    }
    control.ErrorsShow(1);
}

void ExpandedScript::ListLine(long line, const QString& message, QStyle::StandardPixmap icon)
{
    auto* item = new QTreeWidgetItem(m_errors);
    item->setIcon(kLineColumn, style()->standardIcon(icon));
    item->setText(kLineColumn, QString::number(line + 1));
    item->setText(kTextColumn, message);
    item->setToolTip(kTextColumn, message);
    item->setData(kLineColumn, kLineRole, QVariant::fromValue<long>(line));
}

void ExpandedScript::OnNotified(const SCNotification& record)
{
    if (record.nmhdr.code == notify::DoubleClick)
        GoToSource();
}

void ExpandedScript::GoToSource()
{
    CZNCoreEditorControlEx& control = m_editor->control();
    GoToSourceOf(control.LineFromPosition(control.GetCurrentPos(1), 1));
}

void ExpandedScript::GoToSourceOf(long line)
{
    if (m_isStale)
        return;
    const SourceLine place = m_map.Locate(line);
    Q_EMIT SourceChosen(place.path, place.line);
}
