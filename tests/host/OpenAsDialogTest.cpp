// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/OpenAsDialog.h"
#include "host/files/Encodings.h"
#include "host/files/FileDialogs.h"

#include <QComboBox>
#include <QFileDialog>
#include <QScreen>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

TEST(OpenAsDialog, DetectsTheEncodingUnlessOneIsChosen)
{
    const QTemporaryDir folder;
    const OpenAsDialog dialog(nullptr, folder.path());
    EXPECT_EQ(dialog.Choice().encoding, -1);
    EXPECT_EQ(dialog.directory().path(), folder.path());
}

TEST(OpenAsDialog, BeginsWithTheFileThatItIsGiven)
{
    const QTemporaryDir folder;
    for (const char* name : {"a.sql", "b.txt"}) {
        const QString path = folder.filePath(QLatin1String(name));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        const OpenAsDialog dialog(nullptr, path);
        EXPECT_EQ(dialog.Choice().path, path);
        EXPECT_EQ(dialog.selectedNameFilter().startsWith("All"), path.endsWith(".txt"));
    }
}

TEST(OpenAsDialog, HasRoomForSizesAndDates)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("a.sql"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(123'456));
    OpenAsDialog dialog(nullptr, folder.path());
    auto& files = *dialog.findChild<QTreeView*>("treeView");
    dialog.show();
    ASSERT_TRUE(
        QTest::qWaitFor([&files] { return files.model()->rowCount(files.rootIndex()) == 1; }));
    const QModelIndex name = files.model()->index(0, 0, files.rootIndex());
    for (const int column : {1, 3}) { // what stands there is read in the background
        const QModelIndex cell = name.siblingAtColumn(column);
        EXPECT_TRUE(QTest::qWaitFor([&files, &cell, column] {
            const int width = files.fontMetrics().horizontalAdvance(cell.data().toString());
            return width > 0 && files.columnWidth(column) > width;
        })) << cell.data().toString().toStdString();
    }
    EXPECT_GT(files.columnWidth(0), files.fontMetrics().horizontalAdvance("a_long_name_of_a.sql"));
}

TEST(FileDialogs, FitTheScreenWhateverTheirSizeWas)
{
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.resize(4000, 3000);
    FitColumns(dialog);
    dialog.show();
    const QSize room = dialog.screen()->availableSize();
    EXPECT_LT(dialog.width(), room.width());
    EXPECT_LT(dialog.height(), room.height());
}

TEST(OpenAsDialog, OffersEveryEncodingOnceAndAnswersTheChosenOne)
{
    const QTemporaryDir folder;
    const OpenAsDialog dialog(nullptr, folder.path());
    auto* encodings = dialog.findChild<QComboBox*>(QStringLiteral("encoding"));
    ASSERT_TRUE(encodings);
    QSet<int> offered;
    for (int i = 1; i < encodings->count(); ++i) {
        encodings->setCurrentIndex(i);
        offered << dialog.Choice().encoding;
        EXPECT_TRUE(
            encodings->currentText().startsWith(EncodingName(dialog.Choice().encoding, false)));
    }
    EXPECT_EQ(offered.size(), encodings->count() - 1);
    for (const EncodingChoice& choice : EncodingChoices())
        EXPECT_TRUE(offered.contains(choice.encoding)) << choice.name;
}
