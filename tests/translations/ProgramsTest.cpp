// SPDX-License-Identifier: GPL-3.0-or-later
// The programs, started as people of other languages start them.
#include <QProcess>

#include <gtest/gtest.h>

namespace {

QString HelpOf(const char* program, const QProcessEnvironment& environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QLatin1String(program), {QStringLiteral("--help")});
    if (!process.waitForFinished())
        ADD_FAILURE() << process.errorString().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString HelpIn(const char* program, const QString& variable, const QString& language)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES"})
        environment.remove(QLatin1String(name));
    environment.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
    environment.insert(variable, language);
    return HelpOf(program, environment);
}

} // namespace

TEST(Workbench, SpeaksTheLanguageOfTheEnvironment)
{
    const struct
    {
        const char* language;
        const char* says;
    } rows[] = {{"de", "Öffnet SQL-Skripte"}, {"fr", "Ouvre des scripts SQL"},
                {"es", "Abre scripts SQL"},   {"ja", "SQL スクリプト"},
                {"zh_CN", "SQL 脚本"},        {"fi", "Opens SQL scripts"}};
    for (const auto& row : rows) {
        const QString help =
            HelpIn(ZN_WORKBENCH, QStringLiteral("LANGUAGE"), QLatin1String(row.language));
        EXPECT_TRUE(help.contains(QString::fromUtf8(row.says))) << help.toStdString();
    }
}

TEST(Workbench, TakesTheFirstLanguageThatThereAreTextsIn)
{
    EXPECT_TRUE(HelpIn(ZN_WORKBENCH, QStringLiteral("LANGUAGE"), QStringLiteral("fi:es:de"))
                    .contains(QStringLiteral("Abre scripts")));
    EXPECT_TRUE(HelpIn(ZN_WORKBENCH, QStringLiteral("LANG"), QStringLiteral("de_DE.UTF-8"))
                    .contains(QStringLiteral("Öffnet SQL-Skripte")));
}

TEST(ScriptTool, SpeaksEnglishToPipelinesEverywhere)
{
    EXPECT_EQ(HelpIn(ZN_SCRIPT, QStringLiteral("LANGUAGE"), QStringLiteral("de")),
              HelpIn(ZN_SCRIPT, QStringLiteral("LANGUAGE"), QStringLiteral("en")));
}
