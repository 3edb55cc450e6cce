// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/SaveAsDialog.h"
#include "host/files/Encodings.h"

#include <QComboBox>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(SaveAsDialog, ProposesTheFileAndItsEncoding)
{
    QTemporaryDir folder;
    const SaveAsDialog dialog(nullptr, {folder.filePath("orders.sql"), 4, true});
    const SaveTarget target = dialog.Target();
    EXPECT_EQ(target.path, folder.filePath("orders.sql"));
    EXPECT_EQ(target.encoding, 4);
    EXPECT_TRUE(target.mark);
}

TEST(SaveAsDialog, OffersEveryEncodingAndAnswersTheChosenOne)
{
    QTemporaryDir folder;
    SaveAsDialog dialog(nullptr, {folder.filePath("orders.sql"), 6, false});
    auto* encodings = dialog.findChild<QComboBox*>(QStringLiteral("encoding"));
    ASSERT_TRUE(encodings);
    ASSERT_EQ(size_t(encodings->count()), EncodingChoices().size());
    for (int i = 0; i < encodings->count(); ++i) {
        encodings->setCurrentIndex(i);
        EXPECT_EQ(dialog.Target().encoding, EncodingChoices()[size_t(i)].encoding);
        EXPECT_EQ(dialog.Target().mark, EncodingChoices()[size_t(i)].mark);
    }
}
