// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/problems/ScriptChecker.h"

#include "control/Analysis.h"
#include "control/ErrorInfo.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "platform/base/Units.h"

#include <QRegularExpression>

#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::milliseconds kRest(400);
constexpr int kOwner = 1;                   // of the list's entries
constexpr long kLongestChecked = 4'000'000; // units; a longer script would stall the typing

} // namespace

ScriptChecker::ScriptChecker(CZNCoreEditorControlEx& control, QObject* parent)
    : QObject(parent), m_control(control)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(kRest);
    connect(&m_rest, &QTimer::timeout, this, &ScriptChecker::Check);
}

void ScriptChecker::SetLanguage(const QString& name)
{
    m_language = name;
    m_check = SyntaxCheckFor(name);
    Check();
}

void ScriptChecker::CheckSoon()
{
    if (m_check)
        m_rest.start();
}

void ScriptChecker::Check()
{
    m_rest.stop();
    const bool checks = m_check && m_control.GetLength(1) <= kLongestChecked;
    std::vector<ScriptProblem> found;
    if (checks)
        found = m_check->Check(Statements());
    if (found == m_problems)
        return;
    m_problems = std::move(found);
    Mark();
    Q_EMIT ProblemsChanged();
}

QString ScriptChecker::WhyNone() const
{
    if (!m_check && m_language == QLatin1String("SQL"))
        return tr(
            "Scripts in SQL are not checked. Choose PostgreSQL or SQLite in the Language menu "
            "to have this one checked.");
    if (!m_check)
        return tr("Scripts in %1 are not checked: there is no parser for it here.").arg(m_language);
    if (m_control.GetLength(1) > kLongestChecked)
        return tr("The script is too long to be checked.");
    return tr("No problems found.");
}

// A statement as the parser may see it: blanks for lines of the pre-processor; nothing where a
// variable of it may stand for anything.
std::optional<QString> ScriptChecker::WithoutDirectives(QString text)
{
    static const QRegularExpression directive(
        QStringLiteral("^[ \\t]*#(include|define)\\b[^\r\n]*"),
        QRegularExpression::MultilineOption);
    static const QRegularExpression variable(QStringLiteral("&&[A-Za-z_]"));
    for (auto at = directive.globalMatch(text); at.hasNext();) {
        const QRegularExpressionMatch match = at.next();
        text.replace(match.capturedStart(), match.capturedLength(),
                     QString(match.capturedLength(), u' '));
    }
    return text.contains(variable) ? std::nullopt : std::optional(text);
}

std::vector<ScriptStatement> ScriptChecker::Statements() const
{
    std::vector<PartitionInfo> parts;
    m_control.PartitionGetAll(parts, 0, partitioner::ToEnd, 1);
    std::vector<ScriptStatement> statements;
    for (const PartitionInfo& part : parts) {
        if (auto text = part.pszText ? WithoutDirectives(FromUnits(part.pszText)) : std::nullopt)
            statements.push_back({part.nFirst, *text});
    }
    return statements;
}

void ScriptChecker::Mark()
{
    m_control.ErrorDeleteAll(kOwner, problem::kAny, 1);
    for (const ScriptProblem& found : m_problems) {
        ErrorInfo record;
        record.nStart = found.start;
        record.nEnd = found.end;
        record.nKind = found.isSyntax ? problem::Syntax : problem::Semantic;
        record.nSeverity = found.isSyntax ? problem::Error : problem::Warning;
        record.SetText(Units(found.text));
        m_control.ErrorAdd(kOwner, &record, 1);
    }
    m_control.ErrorsShow(1);
}
