// SPDX-License-Identifier: GPL-3.0-or-later
// Preferences by real keys on a real display: colours, fonts and words of two languages, seen again
// in the next run, and given up.
#include "tests/host/OwnPlaces.h"
#include "tests/host/XDoTool.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

constexpr QRgb kYellow = 0xFFFFFF00; // a cell of the palette

class PreferencesStory : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_FALSE(qEnvironmentVariableIsEmpty("DISPLAY"));
        Write("story.pls", "begin\n  zzword := 1;\nend;\n/\n");
        Write("story.mysql", "select zzword from t;\n");
        m_workbench.setProcessEnvironment(OwnPlaces(m_folder.path()));
        m_workbench.setProcessChannelMode(QProcess::ForwardedChannels);
        ASSERT_NO_FATAL_FAILURE(Start());
    }

    void TearDown() override { Stop(); }

    void Start()
    {
        m_workbench.start(QStringLiteral(ZN_WORKBENCH), {Path("story.pls")});
        ASSERT_TRUE(m_workbench.waitForStarted());
        ASSERT_TRUE(Eventually([this] { return Shows("story.pls", m_window); }));
        Focus(m_window);
    }
    void Stop()
    {
        if (m_workbench.state() == QProcess::NotRunning)
            return;
        m_workbench.kill();
        m_workbench.waitForFinished();
    }

    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    void Write(const char* name, const QByteArray& bytes) const
    {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray Setting(const char* file) const
    {
        QFile found(m_folder.path() + QStringLiteral("/data/Marrowfield/") + QLatin1String(file));
        return found.open(QIODevice::ReadOnly) ? found.readAll() : QByteArray();
    }

    static bool Shows(const char* name, QString& window)
    {
        window =
            XDoTool({"search", "--onlyvisible", "--name", QLatin1String(name)}).section('\n', 0, 0);
        return !window.isEmpty();
    }
    static void Focus(const QString& window) { XDoTool({"windowfocus", "--sync", window}); }
    static void Keys(const QStringList& keys)
    {
        XDoTool(QStringList{"key", "--delay", "40"} + keys);
    }
    static void Type(const QString& text) { XDoTool({"type", "--delay", "40", "--", text}); }

    // By the palette of commands, which is a window of its own.
    void OpenPreferences()
    {
        Focus(m_window);
        Keys({"ctrl+shift+a"});
        Type(QStringLiteral("language pref"));
        Keys({"Return"});
        ASSERT_TRUE(Eventually([this] { return Shows("Language Preferences", m_dialog); }));
        Focus(m_dialog);
    }
    // The page is so many rows below that of the language.
    void ShowPage(const QString& language, int below)
    {
        Keys({"ctrl+f"});
        Type(language);
        Keys({"Return", "Home"});
        for (int i = 0; i < below; ++i)
            Keys({"Down"});
    }
    void Tab(int times)
    {
        for (int i = 0; i < times; ++i)
            Keys({"Tab"});
    }
    void SetUpLanguage(const QString& language)
    {
        ShowPage(language, 2); // Color
        Keys({"alt+y"});       // the styles, and from there over the text's colour to the ground
        Tab(2);
        Keys({"space"});
        // The default at first, above the table: the third cell of the fourth row is yellow's.
        Keys({"Down", "Down", "Down", "Down", "Right", "Right", "Return"});
        ShowPage(language, 3); // Font
        Tab(5);                // settings, style, font, fonts, size
        Type(QStringLiteral("13"));
        ShowPage(language, 4); // Keywords
        Tab(3);                // settings, sets, words
        Keys({"ctrl+End"});
        Type(QStringLiteral(" zzword"));
    }
    bool IsSetUp(const char* file) const
    {
        return Setting(qPrintable(QStringLiteral("Syntax/") + QLatin1String(file)))
                   .contains("<Background>FFFF00</Background>") &&
               Setting(qPrintable(QStringLiteral("Syntax/") + QLatin1String(file)))
                   .contains("<Size>13</Size>") &&
               Setting(qPrintable(QStringLiteral("Base/") + QLatin1String(file)))
                   .contains("<Word>zzword</Word>");
    }
    // Of a picture that a run of its own takes.
    int YellowPixels(const char* script) const
    {
        QProcess taker;
        taker.setProcessEnvironment(OwnPlaces(m_folder.path()));
        taker.start(QStringLiteral(ZN_WORKBENCH),
                    {QStringLiteral("--screenshot"), Path("picture.png"), Path(script)});
        taker.waitForFinished();
        const QImage picture(Path("picture.png"));
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                count += picture.pixel(x, y) == kYellow;
        }
        return count;
    }

    QTemporaryDir m_folder;
    QProcess m_workbench;
    QString m_window;
    QString m_dialog;
};

TEST_F(PreferencesStory, WhatIsSetUpIsThereInTheNextRunAndGoesAsAWhole)
{
    EXPECT_EQ(YellowPixels("story.pls"), 0);
    ASSERT_NO_FATAL_FAILURE(OpenPreferences());
    SetUpLanguage(QStringLiteral("pl/sql"));
    Keys({"alt+a"});
    EXPECT_TRUE(Eventually([this] { return IsSetUp("PLSQL.xml"); }));
    SetUpLanguage(QStringLiteral("mysql"));
    Keys({"alt+o"});
    EXPECT_TRUE(Eventually([this] { return IsSetUp("MySQL.xml"); }));
    Stop();

    EXPECT_GT(YellowPixels("story.pls"), 20);
    EXPECT_GT(YellowPixels("story.mysql"), 20);

    ASSERT_NO_FATAL_FAILURE(Start());
    ASSERT_NO_FATAL_FAILURE(OpenPreferences());
    Keys({"alt+s"});
    Keys({"v"}); // everything as shipped
    QString question;
    ASSERT_TRUE(Eventually([&question] { return Shows("^Settings$", question); }));
    Focus(question);
    Keys({"alt+y"});
    EXPECT_TRUE(Eventually([this] {
        return Setting("Syntax/PLSQL.xml").isEmpty() && Setting("Syntax/MySQL.xml").isEmpty();
    }));
    Focus(m_dialog);
    Keys({"alt+c"});
    Stop();
    EXPECT_EQ(YellowPixels("story.pls"), 0);
}

} // namespace
