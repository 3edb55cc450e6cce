// SPDX-License-Identifier: GPL-3.0-or-later
// The table of the view's commands: what each runs, and when it is possible.
#include "ViewFixture.h"

#include "editing/language/FileTypeManager.h"

#include <QClipboard>

#include <algorithm>
#include <map>
#include <set>

namespace {

using Ex = CZNCoreEditorControlEx;

// What the rules ask for.
struct State
{
    bool readOnly;
    bool selection;
    bool bookmark;
    bool brace;
};
using Rule = bool (*)(const State&);

constexpr Rule kWritable = [](const State& s) { return !s.readOnly; };
constexpr Rule kSelected = [](const State& s) { return s.selection; };
constexpr Rule kWritableSelection = [](const State& s) { return s.selection && !s.readOnly; };
constexpr Rule kBookmarked = [](const State& s) { return s.bookmark; };
constexpr Rule kMatched = [](const State& s) { return s.brace && !s.selection; };
constexpr Rule kNone = nullptr; // nothing disables it

struct Row
{
    UINT id;
    void (*run)(Ex& control); // null: no command of the view's
    Rule rule;
};

// clang-format off
constexpr Row kRows[] = {
    {57635, [](Ex& c) { c.Cut(1); },                    kWritableSelection},
    {57634, [](Ex& c) { c.Copy(1); },                   kSelected},
    {57643, [](Ex& c) { c.Undo(1); },                   kWritable},
    {53900, [](Ex& c) { c.SelectAll(1); },              kNone},
    {53899, [](Ex& c) { c.Clear(1); },                  kWritable},
    {53954, [](Ex& c) { c.ToggleFold(c.GetCurLineNumber(), 1); }, kNone},
    {53955, [](Ex& c) { c.FoldAll(); },                 kNone},
    {53910, [](Ex& c) { c.ToggleBookmark(c.GetCurLineNumber()); }, kNone},
    {53912, [](Ex& c) { c.PreviousBookmark(); },        kBookmarked},
    {53911, [](Ex& c) { c.NextBookmark(); },            kBookmarked},
    {53913, [](Ex& c) { c.FirstBookmark(); },           kBookmarked},
    {53914, [](Ex& c) { c.LastBookmark(); },            kBookmarked},
    {53915, [](Ex& c) { c.ClearBookmarks(); },          kBookmarked},
    {54034, [](Ex& c) { c.Tab(1); },                    kNone},
    {54035, [](Ex& c) { c.BackTab(1); },                kNone},
    {53923, nullptr,                                    kWritableSelection},
    {53924, nullptr,                                    kWritableSelection},
    {54042, [](Ex& c) { c.UpperCase(1); },              kNone},
    {54039, [](Ex& c) { c.LowerCase(1); },              kNone},
    {53925, nullptr,                                    kWritableSelection},
    {53926, nullptr,                                    kWritableSelection},
    {53928, [](Ex& c) { c.WordUpperCase(); },           kWritable},
    {53929, [](Ex& c) { c.WordLowerCase(); },           kWritable},
    {53927, [](Ex& c) { c.WordCapitalize(); },          kWritable},
    {53907, [](Ex& c) { c.LineDelete(1); },             kWritable},
    {53906, [](Ex& c) { c.WordDelete(); },              kWritable},
    {53919, [](Ex& c) { c.DelWordLeft(1); },            kWritable},
    {53920, [](Ex& c) { c.DelWordRight(1); },           kWritable},
    {53917, [](Ex& c) { c.DelLineLeft(1); },            kWritable},
    {53918, [](Ex& c) { c.DelLineRight(1); },           kWritable},
    {53909, [](Ex& c) { c.SelectLine(); },              kNone},
    {53908, [](Ex& c) { c.SelectWord(); },              kNone},
    {53916, [](Ex& c) { c.SelectPara(); },              kNone},
    {53953, [](Ex& c) { c.RemoveTrailingSpaces(); },    kWritable},
    {53921, [](Ex& c) { c.ConvertTabToSpaces(); },      kWritable},
    {53922, [](Ex& c) { c.ConvertSpacesToTab(); },      kWritable},
    {53930, [](Ex& c) { c.CharTranspose(); },           kWritable},
    {53931, [](Ex& c) { c.WordTranspose(); },           kWritable},
    {53932, [](Ex& c) { c.LineTranspose(1); },          kWritable},
    {53933, [](Ex& c) { c.LineDuplicate(1); },          kWritable},
    {53934, [](Ex& c) { c.SwapAnchor(); },              kSelected},
    {53951, [](Ex&) {},                                 kWritable},
    {54012, [](Ex&) {},                                 kSelected},
    {53965, [](Ex&) {},                                 kNone},
    {54001, [](Ex& c) { c.NumPlus(); },                 kWritable},
    {54002, [](Ex& c) { c.NumMinus(); },                kWritable},
    {53960, [](Ex& c) { c.JumpToMatchingBrace(false); }, kMatched},
    {53961, [](Ex& c) { c.JumpToMatchingBrace(true); }, kMatched},
    {53966, [](Ex& c) { c.OnEditComments(); },          kWritableSelection},
    {53967, [](Ex& c) { c.OnEditSingleLineComment(); }, kNone},
    {53968, [](Ex& c) { c.UnCommentSelection(0, true); }, kNone},
    {54037, nullptr,                                    kWritableSelection},
    {54041, nullptr,                                    kWritableSelection},
    {53957, [](Ex& c) { c.SetEOLCRLF(); },              kWritable},
    {53958, [](Ex& c) { c.SetEOLCR(); },                kWritable},
    {53959, [](Ex& c) { c.SetEOLLF(); },                kWritable},
    {53962, [](Ex& c) { c.SetZoom(c.GetZoom(1) + 1, 1); }, kNone},
    {53963, [](Ex& c) { c.SetZoom(c.GetZoom(1) - 1, 1); }, kNone},
    {53964, [](Ex& c) { c.SetZoom(0, 1); },             kNone},
    {53999, [](Ex& c) { c.SetCaretLineVisible(!c.GetCaretLineVisible(1), 1); }, kNone},
    {53993, [](Ex& c) { c.SetWrapMode(c.GetWrapMode(1) ? 0 : 1, 1); }, kNone},
    {53994, [](Ex& c) { c.SetVisibleLineNumber(!c.IsVisibleLineNumber()); }, kNone},
    {53995, [](Ex& c) { c.SetMarginWidthN(2, c.GetMarginWidthN(2, 1) ? 0 : 20, 1); }, kNone},
    {53996, [](Ex& c) { c.SetMarginWidthN(3, c.GetMarginWidthN(3, 1) ? 0 : 16, 1); }, kNone},
    {53998, [](Ex& c) { c.SetViewWS(c.GetViewWS(1) ? 0 : 1, 1); }, kNone},
    {53997, [](Ex& c) { c.SetViewEOL(!c.GetViewEOL(1), 1); }, kNone},
};
// clang-format on

// Commands that these rows leave out: they have tests of their own, below and in those of
// searching, opening and printing.
const std::set<UINT> kApart = {57637, 57644, 53938, 53939, 53952, 53989, 53992, 54000,
                               53895, 53896, 54063, 53901, 57640, 53902, 53903, 53904,
                               54049, 53905, 54024, 54025, 54026, 57609};
const std::set<UINT> kIndicators = {54003, 54006, 53893};

// What a command can change.
QString Snapshot(Ex& c)
{
    QStringList all = {c.GetText(),
                       QApplication::clipboard()->text(),
                       QString::number(c.GetCurrentPos(1)),
                       QString::number(c.GetAnchor(1)),
                       QString::number(c.GetEOLMode(1)),
                       QString::number(c.GetZoom(1)),
                       QString::number(c.GetCaretLineVisible(1)),
                       QString::number(c.GetWrapMode(1)),
                       QString::number(c.IsVisibleLineNumber()),
                       QString::number(c.GetMarginWidthN(2, 1)),
                       QString::number(c.GetMarginWidthN(3, 1)),
                       QString::number(c.GetViewWS(1)),
                       QString::number(c.GetViewEOL(1))};
    for (int line = 0; line < c.GetLineCount(1); ++line)
        all << QString::number(c.GetFoldExpanded(line, 1)) << QString::number(c.MarkerGet(line, 1));
    return all.join(u'|');
}

class ViewCommands : public ViewTest
{
protected:
    static constexpr int kSql = 2;

    // A script with something for every command, and the caret or the selection in it.
    void Prepare(OpenView& at, const QString& text, long anchor, long caret)
    {
        Ex& c = at.GetCoreEditorControlRef();
        QApplication::clipboard()->clear();
        c.SetReadOnly(0, 1);
        c.InitializeLanguage(kSql, 0);
        c.ClearBookmarks();
        c.SetText(text.toStdU16String().c_str(), 1);
        c.SetEOLMode(0, 1);
        c.SetZoom(3, 1);
        c.EmptyUndoBuffer(1);
        c.ToggleBookmark(0);
        c.ToggleBookmark(3);
        c.SetSel(0, 0, 1);
        c.ReplaceSel(u"x", 1);
        c.Colorize(0, -1, 1);
        c.SetSel(anchor, caret, 1);
    }

    OpenView* Another()
    {
        auto* other = static_cast<OpenDoc*>(viewed.OpenDocumentFile(QString(), false));
        return static_cast<OpenView*>(other->GetViews().front());
    }
};

class EveryViewCommand : public ViewCommands, public testing::WithParamInterface<Row>
{};

class EveryViewRule : public ViewCommands, public testing::WithParamInterface<Row>
{};

std::string NumberOf(const testing::TestParamInfo<Row>& row)
{
    return "Number" + std::to_string(row.param.id);
}

} // namespace

// Each place of the caret lets other commands show what they do.
TEST_P(EveryViewCommand, DoesItsOperation)
{
    const Row& row = GetParam();
    const QString text =
        QStringLiteral("Select (a), /*b*/ 12  \n\tfrom T  \nbegin\n  x\nend\n  (b)\n");
    const std::pair<long, long> places[] = {{8, 8}, {19, 21}, {12, 17}, {1, 5}, {26, 26}, {33, 33}};
    bool didSomething = false;
    OpenView* other = Another();
    for (const auto& [anchor, caret] : places) {
        Prepare(*view, text, anchor, caret);
        Prepare(*other, text, anchor, caret);
        const QString before = Snapshot(Control());
        EXPECT_EQ(view->OnCmdMsg(row.id, nullptr), row.run != nullptr);
        const QString byCommand = Snapshot(Control());
        QApplication::clipboard()->clear();
        if (row.run)
            row.run(other->GetCoreEditorControlRef());
        EXPECT_EQ(byCommand, Snapshot(other->GetCoreEditorControlRef()));
        didSomething = didSomething || byCommand != before;
    }
    const bool isIdle = !row.run || row.id == 53951 || row.id == 54012 || row.id == 53965;
    EXPECT_EQ(didSomething, !isIdle);
}

TEST_P(EveryViewRule, EnablesExactlyWhenItSays)
{
    const Row& row = GetParam();
    for (int bits = 0; bits < 16; ++bits) {
        const State state{(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0};
        Put(state.brace ? "ab()" : "abcd", state.selection ? 0 : 2, 2);
        Control().ReplaceSel(state.selection ? u"ab" : u"", 1); // something to undo
        Control().InsertText(4, u" ", 1);
        Control().SetSel(state.selection ? 0 : 2, state.selection ? 1 : 2, 1);
        Control().ClearBookmarks();
        if (state.bookmark)
            Control().ToggleBookmark(0);
        Control().SetReadOnly(state.readOnly, 1);
        const Probe probe(row.id, *view);
        if (row.rule)
            EXPECT_EQ(probe.enabled, row.rule(state) ? 1 : 0) << "state " << bits;
        else
            EXPECT_EQ(probe.enabled, -1) << "state " << bits;
    }
}

INSTANTIATE_TEST_SUITE_P(Table, EveryViewCommand, testing::ValuesIn(kRows), NumberOf);
INSTANTIATE_TEST_SUITE_P(Table, EveryViewRule, testing::ValuesIn(kRows), NumberOf);

TEST_F(ViewCommands, AreAllInTheTablesOfThisFile)
{
    std::set<UINT> known = kApart;
    std::set<UINT> ruled = {57637, 57644, 53992, 54000};
    for (const Row& row : kRows) {
        if (row.run)
            known.insert(row.id);
        else
            ruled.insert(row.id);
    }
    for (const CommandEntry& entry : view->GetCommandMap().commands)
        EXPECT_EQ(known.count(entry.id), 1u) << entry.id;
    EXPECT_EQ(view->GetCommandMap().commands.size(), known.size());
    for (const UpdateEntry& entry : view->GetCommandMap().updates)
        EXPECT_EQ(known.count(entry.id) + ruled.count(entry.id) + kIndicators.count(entry.id) > 0,
                  true)
            << entry.id;
}

TEST_F(ViewCommands, PasteAndRedoAreRuledByTheEngine)
{
    Put("ab", 0, 0);
    QApplication::clipboard()->setText("cd");
    Control().SetReadOnly(1, 1);
    EXPECT_EQ(Probe(57637, *view).enabled, 0);
    Control().SetReadOnly(0, 1);
    EXPECT_EQ(Probe(57637, *view).enabled, 1);
    EXPECT_EQ(Probe(57644, *view).enabled, 0);
    view->OnCmdMsg(57637, nullptr);
    EXPECT_EQ(Control().GetText(), "cdab");
    view->OnCmdMsg(57643, nullptr);
    EXPECT_EQ(Probe(57643, *view).enabled, 0);
    EXPECT_EQ(Probe(57644, *view).enabled, 1);
    view->OnCmdMsg(57644, nullptr);
    EXPECT_EQ(Control().GetText(), "cdab");
}

// Its rule stands behind that of Redo.
TEST_F(ViewCommands, SelectAllIsPossibleInAnEmptyText)
{
    Put("", 0, 0);
    EXPECT_FALSE(Probe(53900, *view).known);
    EXPECT_TRUE(view->HasCommand(53900));
    EXPECT_EQ(Probe(57644, *view).enabled, 0);
    Put("text", 0, 0);
    EXPECT_EQ(Probe(57644, *view).enabled, 0);
}

TEST_F(ViewCommands, IndentByKeyIsNotDisabledInAReadOnlyText)
{
    Put("ab", 0, 2);
    Control().SetReadOnly(1, 1);
    EXPECT_FALSE(Probe(54034, *view).known);
    EXPECT_EQ(Probe(53923, *view).enabled, 0);
    view->OnCmdMsg(54034, nullptr);
    EXPECT_EQ(Control().GetText(), "ab");
}

TEST_F(ViewCommands, MarkTheLineEndInForce)
{
    for (const UINT chosen : {53957u, 53958u, 53959u}) {
        view->OnCmdMsg(chosen, nullptr);
        for (const UINT each : {53957u, 53958u, 53959u})
            EXPECT_EQ(Probe(each, *view).radio, each == chosen ? 1 : 0);
    }
}

TEST_F(ViewCommands, NameWhatTheyWillDo)
{
    const std::map<UINT, QString> names = {{53994, "LineNumbers"},
                                           {53995, "Bookmark Margin"},
                                           {53996, "Fold Margin"},
                                           {53998, "Whitespace"},
                                           {53997, "EOL"}};
    for (const auto& [id, name] : names) {
        const bool wasShown = Probe(id, *view).checked == 1;
        EXPECT_EQ(Probe(id, *view).text, (wasShown ? "Hide " : "Show ") + name);
        view->OnCmdMsg(id, nullptr);
        EXPECT_EQ(Probe(id, *view).checked, wasShown ? 0 : 1);
        EXPECT_EQ(Probe(id, *view).text, (wasShown ? "Show " : "Hide ") + name);
    }
}

TEST_F(ViewCommands, CheckWhatIsOn)
{
    for (const UINT id : {53999u, 53993u, 53992u, 54000u}) {
        const int before = Probe(id, *view).checked;
        view->OnCmdMsg(id, nullptr);
        EXPECT_EQ(Probe(id, *view).checked, 1 - before) << id;
        EXPECT_EQ(Probe(id, *view).text, "(none)");
    }
    EXPECT_FALSE(doc->GetSyntaxHighlighting());
    EXPECT_FALSE(doc->GetBraceMatching());
}

TEST_F(ViewCommands, WithoutASyntaxFileLeaveCommentsAlone)
{
    Put("a /*b*/", 0, 7);
    Control().SetCurrentLanguage(4711);
    for (const UINT id : {53966u, 53967u, 53968u})
        view->OnCmdMsg(id, nullptr);
    EXPECT_EQ(Control().GetText(), "a /*b*/");
}

TEST_F(ViewCommands, ClearIsThereForAHostsOwnNumber)
{
    Put("abc", 0, 2);
    view->OnEditClear();
    EXPECT_EQ(Control().GetText(), "c");
}

TEST_F(ViewCommands, IndicateLanguageLineEndAndReadOnly)
{
    Control().InitializeLanguage(2, 0);
    EXPECT_EQ(Probe(54003, *view).text, zncoreeditor::GetFileTypeManager()->GetLanguageName(2));
    Control().SetCurrentLanguage(4711);
    EXPECT_EQ(Probe(54003, *view).text, "");
    const QStringList modes = {"Unknown", "CR + LF (Windows)", "CR (Macintosh)", "LF (Unix)"};
    for (int mode = 0; mode < 4; ++mode) {
        Control().SetEOLMode(mode, 1);
        EXPECT_EQ(Probe(54006, *view).text, modes[mode]);
    }
    EXPECT_EQ(Probe(53893, *view).text, "");
    Control().SetReadOnly(1, 1);
    EXPECT_EQ(Probe(53893, *view).text, "READ");
}

TEST_F(ViewCommands, IndicateThePlaceFromOneUp)
{
    Put("a\n\tb", 4, 4);
    class Place final : public CCmdUI
    {
    public:
        Place() : CCmdUI(1) {}
        void Enable(bool on) override { enabled = on; }
        void SetCheck(int) override {}
        void SetRadio(bool) override {}
        void SetText(const QString& given) override { text = given; }
        bool enabled = false;
        QString text;
    } place;
    view->OnUpdateLineCol(place);
    EXPECT_EQ(place.text, QStringLiteral("Ln 2, Col %1").arg(Control().GetTabWidth(1) + 2));
    EXPECT_TRUE(place.enabled);
}
