// SPDX-License-Identifier: GPL-3.0-or-later
// Prompts that answer what a test has set, and remember what was asked and told.
#pragma once

#include "host/files/Prompts.h"
#include "platform/windows/Questions.h"

class ScriptedPrompts final : public Prompts, public IUserQuestions
{
public:
    ScriptedPrompts()
    {
        SetPrompts(this);
        SetUserQuestions(this);
    }
    ~ScriptedPrompts() override
    {
        SetPrompts(nullptr);
        SetUserQuestions(nullptr);
    }

    QStringList FilesToOpen(QWidget*, const QString&) override { return filesToOpen; }

    QString FolderToShow(QWidget*, const QString& at) override
    {
        proposals << at;
        return folder;
    }

    std::optional<OpenChoice> WhatToOpen(QWidget*, const QString&) override { return whatToOpen; }

    std::optional<SaveTarget> WhereToSave(QWidget*, const SaveTarget& proposal) override
    {
        proposals << proposal.path;
        return saveTarget;
    }

    LoseChanges BeforeLosing(QWidget*, const QString& name) override
    {
        asked << name;
        return loseChanges;
    }

    std::optional<QList<bool>> WhichToSave(QWidget*, const QStringList& names) override
    {
        asked << names;
        if (loseChanges == LoseChanges::Cancel)
            return std::nullopt;
        QList<bool> all(names.size(), loseChanges == LoseChanges::Save);
        for (qsizetype i = 0; i < names.size(); ++i)
            all[i] = all[i] && !notToSave.contains(names[i]);
        return all;
    }

    LoseCharacters BeforeQuestionMarks(QWidget*, const QString& text) override
    {
        asked << text;
        return loseCharacters;
    }

    QList<RecoveryChoice> WhatToRecover(QWidget*, const QList<RecoverableCopy>& copies) override
    {
        recoverable << copies;
        return QList<RecoveryChoice>(copies.size(), recovery);
    }

    bool Confirm(QWidget*, const QString& text, const QString&) override
    {
        asked << text;
        return confirm;
    }

    bool ConfirmComparing(QWidget*, const QString& text, const QString&,
                          const Comparison& comparison) override
    {
        asked << text;
        compared << comparison.path << comparison.text();
        return confirm;
    }

    void Tell(QWidget*, const QString& text) override { told << text; }

    Answer Ask(HWND, const QString& text, Buttons buttons) override
    {
        told << text;
        return buttons == Buttons::Ok ? Answer::Ok : answer;
    }

    QString AskOpenFile(HWND, const QString&) override { return file; }
    QString AskSaveFile(HWND, const QString&, const QString&) override { return file; }

    QString file;   // to open or to save, that is no script
    QString folder; // to show
    QStringList filesToOpen;
    std::optional<OpenChoice> whatToOpen;
    std::optional<SaveTarget> saveTarget;
    QStringList notToSave; // of several
    LoseChanges loseChanges = LoseChanges::Cancel;
    LoseCharacters loseCharacters = LoseCharacters::Cancel;
    bool confirm = false;
    Answer answer = Answer::No; // to the editor's questions

    RecoveryChoice recovery = RecoveryChoice::Later;

    QList<RecoverableCopy> recoverable; // all that were shown
    QStringList compared;               // files and texts
    QStringList proposals;
    QStringList asked;
    QStringList told;
};
