// SPDX-License-Identifier: GPL-3.0-or-later
// Schemes on an editor.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "looks/Schemes.h"
#include "settings/SyntaxFile.h"
#include "tests/control/ControlFixture.h"

#include <QApplication>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>
#include <Qsci/qsciscintillabase.h>

#include <gtest/gtest.h>

namespace {

constexpr int kTransactSql = 3;
constexpr int kKeyword = 9;
constexpr int kComment = 1;

COLORREF ForeOf(CZNCoreEditorControlEx& control, unsigned long style)
{
    return static_cast<COLORREF>(static_cast<QsciScintillaBase*>(control.GetSafeHwnd())
                                     ->SendScintilla(QsciScintillaBase::SCI_STYLEGETFORE, style));
}

COLORREF BackOf(CZNCoreEditorControlEx& control, unsigned long style)
{
    return static_cast<COLORREF>(static_cast<QsciScintillaBase*>(control.GetSafeHwnd())
                                     ->SendScintilla(QsciScintillaBase::SCI_STYLEGETBACK, style));
}

COLORREF Fore(const char* scheme, const char* role)
{
    return zncoreeditor::FindScheme(QLatin1String(scheme))->OfRole(QLatin1String(role))->fore;
}

COLORREF Drawing(const char* scheme, Drawn what)
{
    return zncoreeditor::FindScheme(QLatin1String(scheme))->Of(what);
}

// A desktop of the palette, for as long as this exists.
class Desktop
{
public:
    explicit Desktop(Qt::GlobalColor window) : m_before(QApplication::palette())
    {
        QApplication::setPalette(QPalette(QColor(window)));
        QApplication::processEvents();
    }
    ~Desktop() { QApplication::setPalette(m_before); }
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

private:
    QPalette m_before;
};

class SchemeOfAFace : public testing::Test
{
protected:
    SchemeOfAFace() { face.setLanguage(kTransactSql); }

    ZNCoreEditorWidget face;
    CZNCoreEditorControlEx& control = face.control();
};

TEST_F(SchemeOfAFace, ColoursStylesByTheirRoles)
{
    face.setScheme(QStringLiteral("Dark"));
    EXPECT_EQ(ForeOf(control, kKeyword), Fore("Dark", "keyword"));
    EXPECT_EQ(ForeOf(control, kComment), Fore("Dark", "comment"));
    EXPECT_EQ(BackOf(control, kComment), Drawing("Dark", Drawn::Ground));
    EXPECT_EQ(control.GetCaretFore(1), Drawing("Dark", Drawn::Caret));
    EXPECT_EQ(control.GetCaretLineBack(1), Drawing("Dark", Drawn::CurrentLine));
}

TEST_F(SchemeOfAFace, StaysWithAnotherLanguage)
{
    face.setScheme(QStringLiteral("Dark"));
    face.setLanguage(4);
    EXPECT_EQ(ForeOf(control, kKeyword), Fore("Dark", "keyword"));
    EXPECT_EQ(BackOf(control, 100), Drawing("Dark", Drawn::Ground));
}

TEST_F(SchemeOfAFace, IsGivenUpForTheSettings)
{
    face.setScheme(QStringLiteral("Dark"));
    face.setScheme(QString());
    EXPECT_EQ(BackOf(control, kComment), 0xFFFFFFU);
    EXPECT_EQ(control.Scheme(), nullptr);
}

TEST_F(SchemeOfAFace, LeavesWhatAPersonHasColoured)
{
    CSyntaxFile& syntax = *zncoreeditor::GetFileTypeManager()->GetSyntaxFile(kTransactSql);
    const int before = syntax.GetStyleColorForeground(kKeyword);
    syntax.SetStyleColorForeground(kKeyword, 0x123456);
    face.setScheme(QStringLiteral("Dark"));
    EXPECT_EQ(ForeOf(control, kKeyword), 0x123456U);
    EXPECT_EQ(ForeOf(control, kComment), Fore("Dark", "comment"));
    syntax.SetStyleColorForeground(kKeyword, before);
}

TEST_F(SchemeOfAFace, FollowsTheDesktop)
{
    ASSERT_EQ(face.scheme(), zncoreeditor::kDesktopScheme);
    {
        const Desktop dark(Qt::black);
        EXPECT_EQ(ForeOf(control, kKeyword), Fore("Dark", "keyword"));
    }
    const Desktop light(Qt::white);
    EXPECT_EQ(ForeOf(control, kKeyword), Fore("Light", "keyword"));
}

TEST_F(SchemeOfAFace, IsToldAsAnotherWhenTheDesktopIsAnother)
{
    const Desktop light(Qt::white);
    QApplication::processEvents();
    QSignalSpy told(&face, &ZNCoreEditorWidget::schemeChanged);
    QColor ground;
    QObject::connect(&face, &ZNCoreEditorWidget::schemeChanged, &face,
                     [&] { ground = face.textPalette().color(QPalette::Base); });
    {
        const Desktop dark(Qt::black);
        ASSERT_TRUE(QTest::qWaitFor([&] { return told.count() == 1; }));
        EXPECT_EQ(told.first().at(0).toString(), zncoreeditor::kDesktopScheme);
        EXPECT_LT(ground.lightness(), 128);
    }
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.count() == 2; }));
    EXPECT_GT(ground.lightness(), 128);
    face.setScheme(QStringLiteral("Light"));
    EXPECT_EQ(told.count(), 3);
    const Desktop dark(Qt::black);
    QApplication::processEvents();
    EXPECT_EQ(told.count(), 3);
}

TEST_F(SchemeOfAFace, DoesNotFollowTheDesktopWithANameOfItsOwn)
{
    face.setScheme(QStringLiteral("Light"));
    const Desktop dark(Qt::black);
    EXPECT_EQ(ForeOf(control, kKeyword), Fore("Light", "keyword"));
}

TEST_F(SchemeOfAFace, KeepsTheGroundOfAPlainText)
{
    CSyntaxFile& syntax = *zncoreeditor::GetFileTypeManager()->GetSyntaxFile(kTransactSql);
    syntax.SetSyntaxHighlighting(false);
    face.setScheme(QStringLiteral("Dark"));
    face.setLanguage(kTransactSql);
    syntax.SetSyntaxHighlighting(true);
    EXPECT_EQ(ForeOf(control, kKeyword), Fore("Dark", "text"));
    EXPECT_EQ(BackOf(control, kKeyword), Drawing("Dark", Drawn::Ground));
}

TEST(ControlAlone, HasTheColoursOfItsSettings)
{
    ParentWindow parent;
    CZNCoreEditorControlEx control;
    control.SubclassWindow(
        CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 99, 99}, parent.widget()));
    const Desktop dark(Qt::black);
    control.InitializeLanguage(kTransactSql, 1);
    EXPECT_EQ(BackOf(control, kComment), 0xFFFFFFU);
    EXPECT_TRUE(control.SchemeName().isEmpty());
    control.DestroyWindow();
}

} // namespace
