// SPDX-License-Identifier: GPL-3.0-or-later
// Finding a copy beside owners that come and go.
#include "control/AutosaveCopies.h"
#include "tests/control/FoldersIn.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString kDocument = QStringLiteral("/home/anna/doc.sql");

class AutosaveCopies : public testing::Test
{
protected:
    static QString MakeNotedCopy()
    {
        const QString copy = autosave::MakeCopyFile(autosave::BackupFolder(true));
        autosave::WriteNote(copy, kDocument);
        return copy;
    }

private:
    QTemporaryDir m_folder;
    FoldersIn m_folders{m_folder.path()};
};

} // namespace

TEST_F(AutosaveCopies, AreFoundByTheDocumentTheyAreNotedFor)
{
    const QString copy = MakeNotedCopy();
    const auto take = [](const QString&) { return true; };
    EXPECT_EQ(autosave::BackupFolder(false) + autosave::FindCopy(kDocument, take), copy);
    EXPECT_EQ(autosave::FindCopy(QStringLiteral("/home/anna/other.sql"), take), QString());
}

// Its owner saved: the note was read while it stood, and the claim was free right behind it.
TEST_F(AutosaveCopies, ThatWentBeforeTheyWereClaimedAreNotFound)
{
    MakeNotedCopy();
    const auto take = [](const QString& copy) { return QFile::remove(copy); };
    EXPECT_EQ(autosave::FindCopy(kDocument, take), QString());
}
