// SPDX-License-Identifier: GPL-3.0-or-later
// Lists of folders as data sources and options hold them, and the files that a name may mean.
#pragma once

#include <QString>
#include <QStringList>

// The folders of a list that is separated by ";", trimmed. Entries without a name are left out.
QStringList FoldersOf(const QString& list);

// The file in the folder. A name is appended as it stands, an absolute one too; either kind of
// separator is understood.
QString FileIn(const QString& folder, const QString& name);

// The file, open to be read; the caller closes it. -1 if it cannot be read, and the number of the
// reason as the system gives it: EISDIR for a folder, EINVAL for what is no file, EFBIG for one
// that is larger than an editor's text can be.
int OpenScript(const QString& path, int& reason);
