// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/recovery/ComparisonView.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "host/recovery/LineDiff.h"
#include "looks/Schemes.h"

#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

namespace {

constexpr int kAddedMarker = 15; // nobody else's
constexpr int kRemovedMarker = 16;
constexpr int kBackground = 22; // a marker that is the line's background

QChar SignOf(DiffLine::Kind kind)
{
    return kind == DiffLine::Kind::Added ? u'+' : kind == DiffLine::Kind::Removed ? u'-' : u' ';
}

} // namespace

ComparisonView::ComparisonView(QWidget* parent)
    : QWidget(parent), m_heading(new QLabel(this)), m_text(new ZNCoreEditorWidget(this))
{
    m_heading->setTextFormat(Qt::PlainText); // a name may look like markup
    m_heading->setWordWrap(true);
    m_text->setObjectName(QStringLiteral("comparison"));
    m_text->setAccessibleName(tr("Comparison"));
    CZNCoreEditorControlEx& editor = m_text->control();
    const bool isDark = zncoreeditor::IsDesktopDark();
    editor.DefineMarker(kAddedMarker, kBackground, 0, isDark ? 0x2A4A1E : 0xD6F5D6);
    editor.DefineMarker(kRemovedMarker, kBackground, 0, isDark ? 0x2B2B5A : 0xDADAFB);
    setFocusProxy(m_text);
    auto* leave = new QShortcut(Qt::Key_Escape, this, [this] { window()->close(); });
    leave->setContext(Qt::WidgetWithChildrenShortcut); // the text has a use for the key
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_heading);
    layout->addWidget(m_text, 1);
}

void ComparisonView::SetHeading(const QString& heading)
{
    m_heading->setText(heading);
}

void ComparisonView::ShowText(const QString& heading, const QString& text)
{
    SetHeading(heading);
    CZNCoreEditorControlEx& editor = m_text->control();
    editor.SetReadOnly(0, 1);
    editor.MarkerDeleteAll(-1, 1);
    m_text->setText(text);
    Settle();
}

bool ComparisonView::ShowDifferences(const QString& heading, const QString& first,
                                     const QString& other)
{
    constexpr int kAround = 3; // lines
    const std::vector<DiffLine> lines = UnifiedDiff(first, other, kAround);
    QString text;
    for (const DiffLine& line : lines) {
        const bool isGap = line.kind == DiffLine::Kind::Gap;
        text += isGap ? QStringLiteral("...") : SignOf(line.kind) + u' ' + line.text;
        text += u'\n';
    }
    ShowText(heading, text.chopped(text.isEmpty() ? 0 : 1));
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].kind == DiffLine::Kind::Added)
            m_text->control().MarkerAdd(static_cast<long>(i), kAddedMarker, 1);
        else if (lines[i].kind == DiffLine::Kind::Removed)
            m_text->control().MarkerAdd(static_cast<long>(i), kRemovedMarker, 1);
    }
    return !lines.empty();
}

void ComparisonView::Settle()
{
    CZNCoreEditorControlEx& editor = m_text->control();
    editor.EmptyUndoBuffer(1);
    editor.SetReadOnly(1, 1);
    editor.GotoPos(0, 1);
    editor.SetScrollWidth(1, 1);
    editor.SetCaretLineVisible(0, 1); // it would hide that a line differs
    constexpr int kMargins = 5;       // of a script: they would number the lines of the comparison
    for (int margin = 0; margin < kMargins; ++margin)
        editor.SetMarginWidthN(margin, 0, 1);
}
