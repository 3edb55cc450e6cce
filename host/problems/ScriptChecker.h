// SPDX-License-Identifier: GPL-3.0-or-later
// Checks the script of an editor whenever it has come to rest, and marks what is wrong with it.
#pragma once

#include "host/problems/SyntaxCheck.h"

#include <QObject>
#include <QTimer>

class CZNCoreEditorControlEx;

class ScriptChecker final : public QObject
{
    Q_OBJECT

public:
    // The control outlives the checker.
    ScriptChecker(CZNCoreEditorControlEx& control, QObject* parent);

    // The name of the script's language; one without a parser takes the marks away.
    void SetLanguage(const QString& name);

    void CheckSoon(); // once nothing has changed for a moment
    void Check();     // at once

    const std::vector<ScriptProblem>& Problems() const { return m_problems; }
    QString WhyNone() const; // a sentence, where there are no problems

Q_SIGNALS:
    void ProblemsChanged();

private:
    static std::optional<QString> WithoutDirectives(QString text);
    std::vector<ScriptStatement> Statements() const;
    void Mark();

    CZNCoreEditorControlEx& m_control;
    QString m_language;
    std::unique_ptr<SyntaxCheck> m_check; // null: nothing to check with
    std::vector<ScriptProblem> m_problems;
    QTimer m_rest;
};
