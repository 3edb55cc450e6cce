// SPDX-License-Identifier: GPL-3.0-or-later
// The schemes that ship with the library, against the language files: read here by other means than
// the library's own.
#include "looks/DeliveredColours.h"
#include "looks/Schemes.h"
#include "tests/SourceTree.h"
#include "tests/looks/ShippedStyles.h"

#include <gtest/gtest.h>

namespace {

std::string Named(const Style& style, const ColourScheme& scheme)
{
    return (scheme.Name() + u' ' + style.language + u' ' + style.name).toStdString();
}

const ColourScheme& Scheme(const char* name)
{
    return *zncoreeditor::FindScheme(QLatin1String(name));
}

TEST(ContrastItself, IsThatOfTheGuidelines)
{
    EXPECT_NEAR(Contrast(0x000000, 0xFFFFFF), 21, 0.01);
    EXPECT_NEAR(Contrast(0x767676, 0xFFFFFF), 4.54, 0.01);
}

constexpr const char* kSchemes[] = {"Light", "Dark", "High Contrast", "Print"};

double LeastContrast(const QString& scheme)
{
    return scheme == QLatin1String("High Contrast") ? 7 : 4.5;
}

TEST(ShippedSchemes, AreFour)
{
    EXPECT_EQ(zncoreeditor::SchemeNames().size(), 4);
    for (const char* name : kSchemes)
        EXPECT_TRUE(zncoreeditor::SchemeNames().contains(QLatin1String(name))) << name;
    EXPECT_GT(Luminance(Scheme("Print").Of(Drawn::Ground)), 0.99);
    EXPECT_FALSE(Scheme("Light").IsDark());
    EXPECT_TRUE(Scheme("Dark").IsDark());
    EXPECT_GT(Luminance(Scheme("Light").Of(Drawn::Ground)), 0.9);
    EXPECT_LT(Luminance(Scheme("Dark").Of(Drawn::Ground)), 0.05);
}

TEST(ShippedSchemes, HaveARoleForEveryStyleOfEveryLanguage)
{
    const std::vector<Style> styles = StylesOfAllLanguages();
    ASSERT_GT(styles.size(), 800U);
    for (const Style& style : styles) {
        const QString role = zncoreeditor::GetStyleRoles().RoleOf(style.language, style.name);
        for (const char* name : kSchemes)
            EXPECT_TRUE(Scheme(name).OfRole(role)) << Named(style, Scheme(name));
    }
}

TEST(DeliveredColours, AreThoseOfTheLanguageFile)
{
    std::size_t compared = 0;
    for (const Style& style : StylesOfAllLanguages()) {
        if (style.language != QLatin1String("TransactSQL.xml"))
            continue;
        const auto delivered = ReadDeliveredColours(
            QString::fromStdString(InSourceTree("data/Syntax/TransactSQL.xml")));
        EXPECT_EQ(delivered.value(style.number).fore, style.fore) << style.number;
        EXPECT_EQ(delivered.value(style.number).back, style.back) << style.number;
        ++compared;
    }
    EXPECT_GT(compared, 20U);
    EXPECT_TRUE(ReadDeliveredColours(QStringLiteral("/nowhere.xml")).isEmpty());
}

TEST(ShippedSchemes, CanBeReadInEveryStyleOfEveryLanguage)
{
    for (const char* name : kSchemes) {
        for (const Style& style : StylesOfAllLanguages()) {
            const QString role = zncoreeditor::GetStyleRoles().RoleOf(style.language, style.name);
            const ColourScheme::Pair pair =
                Scheme(name).OfRole(role).value_or(ColourScheme::Pair{});
            EXPECT_GE(Contrast(pair.fore, pair.back), LeastContrast(Scheme(name).Name()))
                << Named(style, Scheme(name));
        }
    }
}

TEST(ShippedSchemes, CanBeReadOnTheCurrentLineAndInTheMargin)
{
    for (const char* name : kSchemes) {
        const ColourScheme& scheme = Scheme(name);
        for (const char* role : {"text", "comment", "keyword", "string", "number", "inactive"}) {
            const auto pair = scheme.OfRole(QLatin1String(role)).value_or(ColourScheme::Pair{});
            EXPECT_GE(Contrast(pair.fore, scheme.Of(Drawn::CurrentLine)),
                      LeastContrast(scheme.Name()))
                << name << role;
        }
        const auto digits =
            scheme.OfRole(QStringLiteral("lineNumber")).value_or(ColourScheme::Pair{});
        EXPECT_GE(Contrast(digits.fore, scheme.Of(Drawn::Margin)), LeastContrast(scheme.Name()))
            << name;
        EXPECT_GE(Contrast(scheme.Of(Drawn::CurrentLineNumber), scheme.Of(Drawn::Margin)), 4.5);
    }
}

// The styles of texts; what stands in margins and guides is never selected.
TEST(ShippedSchemes, CanBeReadWhereTextIsSelected)
{
    for (const char* name : {"Light", "Dark"}) {
        const ColourScheme& scheme = Scheme(name);
        for (const Style& style : StylesOfAllLanguages()) {
            const QString role = zncoreeditor::GetStyleRoles().RoleOf(style.language, style.name);
            const auto pair = scheme.OfRole(role).value_or(ColourScheme::Pair{});
            if (role == "lineNumber" || role == "guide" || role == "callTip")
                continue;
            EXPECT_GE(Contrast(pair.fore, scheme.Of(Drawn::Selection)), 4.5)
                << Named(style, scheme);
            EXPECT_GE(Contrast(pair.fore, scheme.Of(Drawn::SelectionWithoutFocus)), 4.5)
                << Named(style, scheme);
        }
    }
}

TEST(RolesOfStyles, AreThoseOfTheWholeNameThenOfItsLastPart)
{
    const StyleRoles& roles = zncoreeditor::GetStyleRoles();
    EXPECT_EQ(roles.RoleOf(QStringLiteral("Messages.xml"), QStringLiteral("Tag")), "quotedName");
    EXPECT_EQ(roles.RoleOf(QStringLiteral("HTML.xml"), QStringLiteral("Tag")),
              roles.RoleOf({}, QStringLiteral("Tag")));
    EXPECT_NE(roles.RoleOf({}, QStringLiteral("Tag")), "quotedName");
    EXPECT_EQ(roles.RoleOf({}, QStringLiteral("JavaScript: line comment")), "comment");
    EXPECT_EQ(roles.RoleOf({}, QStringLiteral("Inactive: Keyword")), "inactive");
    EXPECT_EQ(roles.RoleOf({}, QStringLiteral("Nothing that is known")), "");
}

TEST(SchemeFile, IsRefusedWithoutOneOfItsColours)
{
    const QString light = QString::fromStdString(InSourceTree("data/Schemes/Light.xml"));
    ASSERT_TRUE(ColourScheme::Read(light));
    QFile file(light);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray text = file.readAll();
    text.replace("\"caret\"", "\"carrot\"");
    QFile broken(QDir::temp().filePath(QStringLiteral("zn-broken-scheme.xml")));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write(text);
    broken.close();
    EXPECT_FALSE(ColourScheme::Read(broken.fileName()));
    broken.remove();
}

TEST(SchemeFile, IsNothingWhereThereIsNone)
{
    EXPECT_FALSE(ColourScheme::Read(QStringLiteral("/nowhere/at/all.xml")));
    EXPECT_EQ(zncoreeditor::FindScheme(QStringLiteral("Mauve")), nullptr);
}

} // namespace
