// SPDX-License-Identifier: GPL-3.0-or-later
// The catalogues of the texts: complete, and fit to stand where the English texts stand.
#include "common/Translations.h"
#include "platform/services/ResourceLoader.h"
#include "tests/SourceTree.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

struct Message
{
    QString context;
    QString source;
    QStringList translations; // one for each plural form
    bool isPlural = false;
    bool isFinished = true;
};

QString Tree(const QString& path)
{
    return QString::fromStdString(InSourceTree(path.toStdString()));
}

QList<Message> Catalogue(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader reader(&file);
    QList<Message> messages;
    QString context;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == u"name") {
            context = reader.readElementText();
        } else if (reader.name() == u"message") {
            messages.push_back({context, {}, {}});
            messages.back().isPlural = reader.attributes().hasAttribute(QLatin1String("numerus"));
        } else if (reader.name() == u"source") {
            messages.back().source = reader.readElementText();
        } else if (reader.name() == u"translation") {
            messages.back().isFinished = !reader.attributes().hasAttribute(QLatin1String("type"));
            if (!messages.back().isPlural)
                messages.back().translations << reader.readElementText();
        } else if (reader.name() == u"numerusform") {
            messages.back().translations << reader.readElementText();
        }
    }
    return messages;
}

QStringList OtherLanguages()
{
    QStringList languages = zncoreeditor::GetUiLanguages();
    languages.removeAll(QStringLiteral("en"));
    return languages;
}

QList<Message> MessagesIn(const QString& language)
{
    return Catalogue(Tree(QStringLiteral("translations/zncoreeditor_%1.ts").arg(language))) +
           Catalogue(Tree(QStringLiteral("translations/znworkbench_%1.ts").arg(language)));
}

// What code puts values in for, sorted.
QStringList Places(const QString& text)
{
    static const QRegularExpression place(QStringLiteral("%L?[0-9n]"));
    QStringList places;
    for (auto found = place.globalMatch(text); found.hasNext();)
        places << found.next().captured();
    places.sort();
    places.removeDuplicates();
    return places;
}

class Catalogues : public testing::TestWithParam<QString>
{};

INSTANTIATE_TEST_SUITE_P(Of, Catalogues, testing::ValuesIn(OtherLanguages()),
                         [](const auto& of) { return of.param.toStdString(); });

} // namespace

TEST_P(Catalogues, HaveEveryText)
{
    const QList<Message> messages = MessagesIn(GetParam());
    EXPECT_GT(messages.size(), 800);
    for (const Message& message : messages) {
        EXPECT_TRUE(message.isFinished && !message.translations.isEmpty() &&
                    !message.translations.contains(QString()))
            << message.context.toStdString() << ": " << message.source.toStdString();
    }
}

TEST_P(Catalogues, HaveTheFormsOfTheLanguageForNumbers)
{
    const bool hasPlural =
        GetParam() != QLatin1String("ja") && GetParam() != QLatin1String("zh_CN");
    for (const Message& message : MessagesIn(GetParam())) {
        EXPECT_EQ(message.translations.size(), message.isPlural && hasPlural ? 2 : 1)
            << message.source.toStdString();
    }
}

TEST_P(Catalogues, KeepThePlacesOfValues)
{
    for (const Message& message : MessagesIn(GetParam())) {
        for (const QString& text : message.translations)
            EXPECT_EQ(Places(text), Places(message.source)) << text.toStdString();
    }
}

TEST_P(Catalogues, KeepWhatCodeLooksFor)
{
    for (const Message& message : MessagesIn(GetParam())) {
        const QString& text = message.translations.front();
        const QString& source = message.source;
        EXPECT_EQ(text.count(u'\t'), source.count(u'\t')) << text.toStdString();
        EXPECT_EQ(text.count(u'\n'), source.count(u'\n')) << text.toStdString();
        EXPECT_EQ(text.count(QStringLiteral(";;")), source.count(QStringLiteral(";;")))
            << text.toStdString();
        const bool isTyped = message.context == QLatin1String("PatternMenus");
        EXPECT_EQ(isTyped ? text.section(u'\t', 1) : QString(),
                  isTyped ? source.section(u'\t', 1) : QString());
        EXPECT_TRUE(text.endsWith(u'|') || !source.endsWith(u'|')) << text.toStdString();
        EXPECT_EQ(text.endsWith(QStringLiteral("...")), source.endsWith(QStringLiteral("...")))
            << text.toStdString();
    }
}

// A filter of files says more than words.
TEST_P(Catalogues, KeepThePatternsOfFiles)
{
    static const QRegularExpression patterns(QStringLiteral("\\(\\*[^)]*\\)"));
    for (const Message& message : MessagesIn(GetParam())) {
        QStringList expected;
        QStringList given;
        for (auto found = patterns.globalMatch(message.source); found.hasNext();)
            expected << found.next().captured();
        for (auto found = patterns.globalMatch(message.translations.front()); found.hasNext();)
            given << found.next().captured();
        EXPECT_EQ(given, expected) << message.source.toStdString();
    }
}

TEST_P(Catalogues, GiveALetterWhereEnglishGivesOne)
{
    static const QRegularExpression letter(QStringLiteral("&[^&\\s]"));
    for (const Message& message : MessagesIn(GetParam())) {
        QString source = message.source;
        QString text = message.translations.front();
        source.remove(QStringLiteral("&&"));
        text.remove(QStringLiteral("&&"));
        EXPECT_EQ(text.count(letter), source.count(letter)) << text.toStdString();
    }
}

// A letter that two have opens none of them.
TEST_P(Catalogues, LeaveTheLettersOfTheMenuBarToIt)
{
    static const QRegularExpression letter(QStringLiteral("&([^&\\s])"));
    const QStringList bar{"&File", "&Edit", "&Search", "&View", "&Language", "&Tools", "&Help"};
    const QStringList options{"Match &case", "&Whole word", "E&xpression", "&In selection",
                              "&Keep case"};
    const auto letterOf = [](const QString& text) {
        return letter.match(text).captured(1).toLower();
    };
    QStringList menus; // in English and in the language
    QStringList buttons;
    for (const Message& message : MessagesIn(GetParam())) {
        const QStringList letters{"en " + letterOf(message.source),
                                  letterOf(message.translations.front())};
        const bool isOfBar = message.context == u"MainWindow" || message.context == u"LanguageMenu";
        if (isOfBar && bar.contains(message.source))
            menus += letters;
        else if ((message.context == u"ResultsPane" && message.source.contains(letter)) ||
                 (message.context == u"FindBar" && options.contains(message.source)))
            buttons += letters;
    }
    EXPECT_EQ(menus.size(), 2 * bar.size());
    EXPECT_EQ(QSet<QString>(menus.begin(), menus.end()).size(), menus.size());
    EXPECT_GE(buttons.size(), 20);
    for (const QString& button : buttons)
        EXPECT_FALSE(menus.contains(button)) << button.toStdString();
}

// What the sources say by now, as the tool of Qt finds it.
TEST_P(Catalogues, KnowWhatTheSourcesSay)
{
    const QTemporaryDir folder;
    QSet<QString> known;
    for (const char* name : {"zncoreeditor", "znworkbench"}) {
        const QString file = QStringLiteral("%1_%2.ts").arg(QLatin1String(name), GetParam());
        ASSERT_TRUE(
            QFile::copy(Tree(QStringLiteral("translations/") + file), folder.filePath(file)));
        for (const Message& message : Catalogue(folder.filePath(file)))
            known.insert(message.context + u'|' + message.source);
    }
    ASSERT_EQ(QProcess::execute(Tree(QStringLiteral("tools/update-translations")), {folder.path()}),
              0);
    QSet<QString> said;
    for (const QString& file : QDir(folder.path()).entryList({QStringLiteral("*.ts")})) {
        for (const Message& message : Catalogue(folder.filePath(file)))
            said.insert(message.context + u'|' + message.source);
    }
    EXPECT_GT(said.size(), 800);
    EXPECT_EQ(QStringList((said - known).values()), QStringList())
        << "tools/update-translations, then translate";
    EXPECT_EQ(QStringList((known - said).values()), QStringList()) << "said no longer";
}

namespace {

// Styles, whose names may have two parts, and sets of keywords.
QStringList NamesIn(const QString& path)
{
    static const QRegularExpression style(
        QStringLiteral("<Style number[^>]*>\\s*<Name>(?:([^<]*): )?([^<]*)</Name>"));
    static const QRegularExpression set(QStringLiteral("<Keywords[^>]*description=\"([^\"]*)\""));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    QStringList names;
    for (auto found = style.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const QString last = match.captured(2);
        names << (match.captured(1).isEmpty() ? last : last.left(1).toUpper() + last.mid(1));
        if (!match.captured(1).isEmpty())
            names << match.captured(1);
    }
    for (auto found = set.globalMatch(text); found.hasNext();)
        names << found.next().captured(1);
    return names;
}

QList<UINT> NumbersIn(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&file);
    QList<UINT> numbers;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"string")
            numbers << reader.attributes().value(QLatin1String("id")).toUInt();
    }
    return numbers;
}

} // namespace

TEST_P(Catalogues, HaveEveryTextWithANumber)
{
    const QString english = Tree(QStringLiteral("data/Strings.xml"));
    const QString other = Tree(QStringLiteral("data/Strings_%1.xml").arg(GetParam()));
    QList<UINT> expected = NumbersIn(english);
    // Words of scripts, pictures, and the name of the product.
    for (const UINT same : {28167U, 28168U, 28176U, 28177U, 57344U})
        expected.removeAll(same);
    EXPECT_EQ(NumbersIn(other), expected);
    const CZNBaseResourceLoader source(english);
    const CZNBaseResourceLoader translated(other);
    for (const UINT number : expected) {
        EXPECT_EQ(Places(translated.LoadString(number)), Places(source.LoadString(number)));
        EXPECT_EQ(translated.LoadString(number).count(u'\n'),
                  source.LoadString(number).count(u'\n'));
    }
}

// The names in the data are shown in lists of the preferences.
TEST_P(Catalogues, HaveTheNamesOfTheSyntaxFiles)
{
    QSet<QString> known;
    for (const Message& message : MessagesIn(GetParam())) {
        if (message.context == QLatin1String("SyntaxFiles"))
            known.insert(message.source);
    }
    const QDir folder(Tree(QStringLiteral("data/Syntax")));
    for (const QString& name : folder.entryList({QStringLiteral("*.xml")})) {
        for (const QString& text : NamesIn(folder.filePath(name)))
            EXPECT_TRUE(known.contains(text)) << name.toStdString() << ": " << text.toStdString();
    }
}
