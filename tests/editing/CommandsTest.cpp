// SPDX-License-Identifier: GPL-3.0-or-later
// Commands by number: what each does, and when it is possible.
#include "tests/editing/EditingFixture.h"

#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "settings/SyntaxFile.h"

#include <fstream>

namespace {

class Probe final : public CCmdUI
{
public:
    using CCmdUI::CCmdUI;
    void Enable(bool on) override { enabled = on; }
    void SetCheck(int) override {}
    void SetRadio(bool) override {}
    void SetText(const QString&) override {}

    bool enabled = false;
};

// What the rules of these commands ask for.
struct State
{
    bool readOnly;
    bool windowEnabled;
    bool selection;
    bool bookmark;
    bool brace;
};

struct RuleRow
{
    const char* name;
    UINT id;
    bool (*isPossible)(const State& state);
};

constexpr bool (*kSelected)(const State&) = [](const State& s) {
    return s.selection && !s.readOnly;
};
constexpr bool (*kEditable)(const State&) = [](const State& s) { return !s.readOnly; };
constexpr bool (*kEditableWindow)(const State&) = [](const State& s) {
    return !s.readOnly && s.windowEnabled;
};
constexpr bool (*kBookmarked)(const State&) = [](const State& s) { return s.bookmark; };
constexpr bool (*kBrace)(const State&) = [](const State& s) { return s.windowEnabled && s.brace; };
constexpr bool (*kAlways)(const State&) = [](const State&) { return true; };

constexpr RuleRow kRules[] = {
    {"Comment", 54037, kSelected},           {"Uncomment", 54041, kSelected},
    {"MatchToken", 53960, kBrace},           {"MatchTokenOfTheMenu", 54040, kBrace},
    {"InsertFile", 54038, kEditableWindow},  {"NextBookmark", 54056, kBookmarked},
    {"SetBookmark", 54057, kAlways},         {"PreviousBookmark", 54058, kBookmarked},
    {"DeleteBookmarks", 54059, kBookmarked}, {"NumPlus", 54001, kEditable},
    {"NumMinus", 54002, kEditable},          {"Windows", 54071, kEditableWindow},
    {"Unix", 54072, kEditableWindow},        {"Mac", 54073, kEditableWindow},
};

class EveryRule : public EditingTest, public testing::WithParamInterface<RuleRow>
{};

TEST_P(EveryRule, EnablesExactlyWhenItSays)
{
    for (int bits = 0; bits < 32; ++bits) {
        const State state{(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0,
                          (bits & 16) != 0};
        PutPlain(state.brace ? u"ab()" : u"abcd");
        control.ClearBookmarks();
        if (state.bookmark)
            control.ToggleBookmark(0);
        control.SetSel(state.selection ? 0 : 2, 2, 1);
        control.SetReadOnly(state.readOnly, 1);
        control.GetSafeHwnd()->setEnabled(state.windowEnabled);
        Probe probe(GetParam().id);
        EXPECT_TRUE(control.OnCmdMsg(GetParam().id, &probe));
        EXPECT_EQ(probe.enabled, GetParam().isPossible(state)) << "state " << bits;
    }
    control.GetSafeHwnd()->setEnabled(true);
}

INSTANTIATE_TEST_SUITE_P(Commands, EveryRule, testing::ValuesIn(kRules),
                         [](const auto& row) { return std::string(row.param.name); });

class Commands : public EditingTest
{
protected:
    std::u16string After(UINT id, const std::u16string& marked)
    {
        Put(marked);
        EXPECT_TRUE(control.OnCmdMsg(id, nullptr));
        return Marked();
    }
};

TEST_F(Commands, ABraceInAShortTextHasNoMatch)
{
    Put(u"|()");
    Probe probe(53960);
    control.OnCmdMsg(53960, &probe);
    EXPECT_FALSE(probe.enabled);
}

TEST_F(Commands, OutdentNeedsASelectionAndIndentDoesNot)
{
    Put(u"|abc");
    Probe indent(54034);
    Probe outdent(54035);
    control.OnCmdMsg(54034, &indent);
    control.OnCmdMsg(54035, &outdent);
    EXPECT_TRUE(indent.enabled);
    EXPECT_FALSE(outdent.enabled);
}

TEST_F(Commands, RunTheirOperation)
{
    EXPECT_EQ(After(54040, u"|(a)"), u"(a|)");
    EXPECT_EQ(After(53960, u"|(a)"), u"(a|)");
    EXPECT_EQ(After(54001, u"[7]|"), u"[8]|");
    EXPECT_EQ(After(54002, u"[7]|"), u"[6]|");
    EXPECT_EQ(After(54057, u"0\n|1"), u"0\n|1");
    EXPECT_TRUE(control.HasBookmarks());
    control.GotoLine(0, 1);
    EXPECT_TRUE(control.OnCmdMsg(54056, nullptr));
    EXPECT_EQ(control.GetCurLineNumber(), 1);
    control.GotoLine(0, 1);
    EXPECT_TRUE(control.OnCmdMsg(54058, nullptr));
    EXPECT_EQ(control.GetCurLineNumber(), 1);
    EXPECT_TRUE(control.OnCmdMsg(54059, nullptr));
    EXPECT_FALSE(control.HasBookmarks());
}

TEST_F(Commands, ZoomWithinTheirLimits)
{
    control.SetZoom(19, 1);
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(control.OnCmdMsg(53962, nullptr));
    EXPECT_EQ(control.GetZoom(1), 20);
    control.SetZoom(-9, 1);
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(control.OnCmdMsg(53963, nullptr));
    EXPECT_EQ(control.GetZoom(1), -10);
    EXPECT_TRUE(control.OnCmdMsg(53964, nullptr));
    EXPECT_EQ(control.GetZoom(1), 0);
}

TEST_F(Commands, ChangeLineEnds)
{
    EXPECT_EQ(After(54071, u"a\n|b"), u"a\r\n|b");
    EXPECT_EQ(control.GetEOLMode(1), kCrLf);
    EXPECT_EQ(After(54073, u"a\n|b"), u"a\r|b");
    EXPECT_EQ(control.GetEOLMode(1), kCr);
    EXPECT_EQ(After(54072, u"a\r\n|b"), u"a\n|b");
    EXPECT_EQ(control.GetEOLMode(1), kLf);
}

// Asked for a file, answers with one.
class ChosenFile final : public IUserQuestions
{
public:
    explicit ChosenFile(QString path) : m_path(std::move(path)) { SetUserQuestions(this); }
    ~ChosenFile() override { SetUserQuestions(nullptr); }

    Answer Ask(HWND, const QString&, Buttons) override { return Answer::Ok; }
    QString AskOpenFile(HWND, const QString& given) override
    {
        filters = given;
        return m_path;
    }

    QString filters;

private:
    QString m_path;
};

TEST_F(Commands, InsertTheFileThatIsChosen)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("in.sql"));
    std::ofstream(path.toStdString(), std::ios::binary) << "x";
    ChosenFile chosen(path);
    EXPECT_EQ(After(54038, u"a|b"), u"a|xb");
    EXPECT_TRUE(chosen.filters.startsWith(QStringLiteral("Scripts (*.sql);;DDL Files (*.ddl);;")));
}

TEST_F(Commands, InsertNothingIfNoFileIsChosen)
{
    const ChosenFile none{QString()};
    EXPECT_EQ(After(54038, u"a|b"), u"a|b");
    const ChosenFile missing(QStringLiteral("/nowhere/in.sql"));
    EXPECT_EQ(After(54038, u"a|b"), u"a|b");
}

// A language of the shipped ones that has the defaults, or none.
int LanguageWith(int block, int line)
{
    CFileTypeManager& manager = *zncoreeditor::GetFileTypeManager();
    for (int language = 0; language < manager.GetLanguageCount(); ++language) {
        CSyntaxFile* syntax = manager.GetSyntaxFile(language);
        if (syntax && syntax->GetDefaultBlockComment() == block &&
            syntax->GetDefaultSingleLineComment() == line)
            return language;
    }
    return -1;
}

TEST_F(Commands, CommentAndUncommentByTheLanguagesDefaults)
{
    const int language = LanguageWith(0, 0);
    ASSERT_GE(language, 0);
    control.SetCurrentLanguage(language);
    EXPECT_EQ(After(54037, u"a [b]| c"), u"a /*[b]|*/ c");
    EXPECT_EQ(After(54037, u"[a\nb]|"), u"[-- a\n-- b]|");
    EXPECT_EQ(After(54041, u"x [/*abc*/]|"), u"x [abc]|");
    EXPECT_EQ(After(54041, u"[-- a\n-- b]|"), u"[a\nb]|");
}

TEST_F(Commands, FallToTheLineFormWithoutBlockMarkers)
{
    const int language = LanguageWith(0, 0);
    ASSERT_GE(language, 0);
    control.SetCurrentLanguage(language);
    control.Reset();
    control.AddSingleLineComment(QStringLiteral("#"));
    EXPECT_EQ(After(54037, u"a [b]| c"), u"a [# b]| c");
    control.OnEditSingleLineComment();
    EXPECT_EQ(Marked(), u"a [# # b]| c");
}

TEST_F(Commands, DoNothingToCommentsOfAnUnknownLanguage)
{
    control.SetCurrentLanguage(9999);
    EXPECT_EQ(After(54037, u"a [b]| c"), u"a [b]| c");
    EXPECT_EQ(After(54041, u"[-- a]|"), u"[-- a]|");
    control.OnEditSingleLineComment();
    EXPECT_EQ(Marked(), u"[-- a]|");
}

TEST_F(Commands, UncommentNothingForALanguageWithoutALineDefault)
{
    const int language = LanguageWith(-1, -1);
    ASSERT_GE(language, 0);
    control.SetCurrentLanguage(language);
    EXPECT_EQ(After(54041, u"[/* a */]|"), u"[/* a */]|");
}

} // namespace
