// SPDX-License-Identifier: GPL-3.0-or-later
// A file in an editor that nobody sees: read, changed, written.
#pragma once

#include "editing/ZNCoreEditorControlEx.h"

#include <QString>
#include <QTemporaryDir>
#include <QWidget>

#include <memory>

inline const QString kStandardInput = QStringLiteral("-");

class ScriptFile
{
public:
    ScriptFile();
    ~ScriptFile();

    CZNCoreEditorControlEx& Control() { return *m_control; }

    void SetLanguage(int number);
    // False if the registry does not know the name.
    bool SetLanguage(const QString& name);

    // Empty if it is read as a whole, else a sentence that tells why it is not. The path of
    // kStandardInput is that.
    QString Read(const QString& path);

    // The first line, from 0, with a character that a save could not give back as it was read, as
    // half of a surrogate pair; -1 if there is none. For the file that was read last.
    int FirstLineChanged();

    // Empty if it is written, else a sentence. An empty path is the standard output.
    QString Write(const QString& path, int encoding, bool mark);

    // The first line, from 0, with a character that the encoding lacks; -1 if it has them all.
    int FirstLineBeyond(int encoding);

    // The line ends of the text by name; "mixed" and "none" among them.
    QString LineEnds();

    // The engine's number of those that most lines have. A load looks at the first lines alone, and
    // at none behind an empty first one.
    int LineEndMode();

private:
    struct LineEndCounts
    {
        int lf = 0;
        int cr = 0;
        int crlf = 0;
    };

    LineEndCounts CountLineEnds();
    QString ReadFile(const QString& path);
    QString TakeStandardInput();
    bool WritesWhatItRead();
    QString WriteToOutput(int encoding, bool mark);

    QWidget m_parent;
    QString m_path;                          // that was read last
    std::unique_ptr<QTemporaryDir> m_folder; // of what came by the standard input
    std::unique_ptr<CZNCoreEditorControlEx> m_control;
};
