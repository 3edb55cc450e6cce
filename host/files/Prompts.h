// SPDX-License-Identifier: GPL-3.0-or-later
// What the workbench asks and tells a person. An interface, so that a run without anyone in front
// of it (a picture, a test) answers by itself. The questions of the editor's own documents go
// through IUserQuestions.
#pragma once

#include "host/recovery/ComparisonDialog.h"
#include "host/recovery/RecoverableCopy.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class QWidget;

struct SaveTarget
{
    QString path;
    int encoding = 0; // a number of host/files/Encodings.h
    bool mark = false;
};

struct OpenChoice
{
    QString path;
    int encoding = -1; // a number of host/files/Encodings.h; -1: detect it
};

enum class LoseChanges
{
    Save,
    Discard,
    Cancel
};

enum class LoseCharacters
{
    SaveAsUtf8,
    SaveAnyway,
    Cancel
};

class Prompts
{
public:
    virtual ~Prompts() = default;

    virtual QStringList FilesToOpen(QWidget* parent, const QString& folder) = 0; // empty: none
    virtual QString FolderToShow(QWidget* parent, const QString& folder) = 0;    // empty: none
    // Which file, and how to read it; nothing if the person thought better of it.
    virtual std::optional<OpenChoice> WhatToOpen(QWidget* parent, const QString& place) = 0;
    // Where and how to save; nothing if the person thought better of it.
    virtual std::optional<SaveTarget> WhereToSave(QWidget* parent, const SaveTarget& proposal) = 0;
    virtual LoseChanges BeforeLosing(QWidget* parent, const QString& name) = 0;
    // The same of several at once: whether each is to be saved; nothing: all is to stay.
    virtual std::optional<QList<bool>> WhichToSave(QWidget* parent, const QStringList& names) = 0;
    virtual LoseCharacters BeforeQuestionMarks(QWidget* parent, const QString& text) = 0;
    // One choice for each of the copies.
    virtual QList<RecoveryChoice> WhatToRecover(QWidget* parent,
                                                const QList<RecoverableCopy>& copies) = 0;
    virtual bool Confirm(QWidget* parent, const QString& text, const QString& doIt) = 0;
    // The same of a script and its file, which may be compared before the answer.
    virtual bool ConfirmComparing(QWidget* parent, const QString& text, const QString& doIt,
                                  const Comparison& comparison) = 0;
    virtual void Tell(QWidget* parent, const QString& text) = 0;
};

// The boxes and dialogs that a person meets.
class DialogPrompts final : public Prompts
{
public:
    QStringList FilesToOpen(QWidget* parent, const QString& folder) override;
    QString FolderToShow(QWidget* parent, const QString& folder) override;
    std::optional<OpenChoice> WhatToOpen(QWidget* parent, const QString& place) override;
    std::optional<SaveTarget> WhereToSave(QWidget* parent, const SaveTarget& proposal) override;
    LoseChanges BeforeLosing(QWidget* parent, const QString& name) override;
    std::optional<QList<bool>> WhichToSave(QWidget* parent, const QStringList& names) override;
    LoseCharacters BeforeQuestionMarks(QWidget* parent, const QString& text) override;
    QList<RecoveryChoice> WhatToRecover(QWidget* parent,
                                        const QList<RecoverableCopy>& copies) override;
    bool Confirm(QWidget* parent, const QString& text, const QString& doIt) override;
    bool ConfirmComparing(QWidget* parent, const QString& text, const QString& doIt,
                          const Comparison& comparison) override;
    void Tell(QWidget* parent, const QString& text) override;
};

// The prompts of the process: the dialogs, unless others are set, which stay the caller's. Null
// brings the dialogs back.
Prompts& GetPrompts();
void SetPrompts(Prompts* prompts);

// What a person has chosen to write to, with the ending if the name has none. A file of that name
// is asked about, since the chooser was not given it; empty: it is to stay.
QString WithEnding(QWidget* parent, const QString& path, const QString& ending);
