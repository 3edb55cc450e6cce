// SPDX-License-Identifier: GPL-3.0-or-later
// TemplateStore: the templates of each language, read from the file that the configuration names as
// its AutoCompFile. A person's own file of the same name comes first; a file that was changed is
// read again.
#pragma once

#include "completion/TemplateFile.h"

#include <QDateTime>
#include <QHash>

class TemplateStore
{
public:
    // Those of the language's number; empty if it names no file, or none that can be read.
    const std::vector<completion::CodeTemplate>& Of(int language);
    // The template with the short name, null if there is none. Good until the next question.
    const completion::CodeTemplate* Find(int language, const QString& shortName);

    // The person's own file, made as a copy of the one that was installed. Empty if the language
    // names none, or it cannot be made.
    static QString OwnFile(int language);

    static TemplateStore& Global();

private:
    struct Read
    {
        QString path;
        QDateTime time; // of the file
        completion::TemplateFile file;
    };

    QHash<int, Read> m_files;
};
