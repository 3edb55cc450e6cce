// SPDX-License-Identifier: GPL-3.0-or-later
// Which language the texts are in, and what a host can set.
#include "common/Globals.h"
#include "common/Translations.h"
#include "host/translations/Translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPushButton>

#include <gtest/gtest.h>

namespace {

constexpr UINT kTruncated = 28178; // "Errors occurred while reading ..."
constexpr UINT kDefine = 28168;    // a word of scripts

class UiLanguage : public testing::Test
{
protected:
    ~UiLanguage() override
    {
        zncoreeditor::SetUiLanguage({});
        InstallTranslations();
    }
};

QString Numbered(UINT id)
{
    return zncoreeditor::GetResourceLoader().LoadString(id);
}

} // namespace

TEST_F(UiLanguage, IsEnglishWhereTheEnvironmentAsksForNone)
{
    EXPECT_EQ(zncoreeditor::GetUiLanguage(), "en");
    EXPECT_TRUE(Numbered(kTruncated).startsWith(QStringLiteral("Errors occurred")));
}

TEST_F(UiLanguage, IsThatOfAHostFromThereOn)
{
    zncoreeditor::SetUiLanguage(QStringLiteral("de"));
    EXPECT_EQ(QCoreApplication::translate("FindDialogs", "&Cancel").remove(u'&'), "Abbrechen");
    EXPECT_TRUE(Numbered(kTruncated).startsWith(QStringLiteral("Beim Lesen")));
    zncoreeditor::SetUiLanguage(QStringLiteral("en"));
    EXPECT_EQ(QCoreApplication::translate("FindDialogs", "&Cancel"), "&Cancel");
    EXPECT_TRUE(Numbered(kTruncated).startsWith(QStringLiteral("Errors occurred")));
}

TEST_F(UiLanguage, LeavesAloneWhatIsNoText)
{
    zncoreeditor::SetUiLanguage(QStringLiteral("de"));
    EXPECT_EQ(Numbered(kDefine), "#define");
}

TEST_F(UiLanguage, TakesACountryForItsLanguage)
{
    for (const auto& [asked, taken] : {std::pair{"de_AT", "de"},
                                       {"fr-CA", "fr"},
                                       {"es_MX", "es"},
                                       {"ja_JP", "ja"},
                                       {"zh_SG", "zh_CN"},
                                       {"en_GB", "en"}}) {
        zncoreeditor::SetUiLanguage(QLatin1String(asked));
        EXPECT_EQ(zncoreeditor::GetUiLanguage(), QLatin1String(taken)) << asked;
    }
}

TEST_F(UiLanguage, IsEnglishWhereThereAreNoTexts)
{
    for (const char* asked : {"fi", "zh_TW", "nonsense"}) {
        zncoreeditor::SetUiLanguage(QStringLiteral("de"));
        zncoreeditor::SetUiLanguage(QLatin1String(asked));
        EXPECT_EQ(zncoreeditor::GetUiLanguage(), "en") << asked;
    }
}

TEST_F(UiLanguage, BringsTheTextsOfQtAlong)
{
    zncoreeditor::SetUiLanguage(QStringLiteral("de"));
    InstallTranslations();
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Abbrechen");
    zncoreeditor::SetUiLanguage(QStringLiteral("en"));
    InstallTranslations();
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancel");
}

TEST_F(UiLanguage, TakesEnglishOrderAndNumbersWhereTheDesktopHasNone)
{
    QLocale::setDefault(QLocale::c());
    InstallTranslations();
    EXPECT_EQ(QLocale().language(), QLocale::English);
    QLocale::setDefault(QLocale(QLocale::German));
    InstallTranslations();
    EXPECT_EQ(QLocale().language(), QLocale::German);
    QLocale::setDefault(QLocale::system());
}

TEST(WordsWithoutMnemonic, KeepNoLetterInBrackets)
{
    using zncoreeditor::WithoutMnemonic;
    EXPECT_EQ(WithoutMnemonic("Save &As..."), "Save As...");
    EXPECT_EQ(WithoutMnemonic(QStringLiteral("保存(&S)...")), QStringLiteral("保存..."));
    EXPECT_EQ(WithoutMnemonic("Groups by ( and )"), "Groups by ( and )");
}
