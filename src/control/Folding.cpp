// SPDX-License-Identifier: GPL-3.0-or-later
// Folding of the control: the look of the margin, the walks over headers and their children, and
// what a click does. The engine keeps levels and visibility; which lines go together is told here.
#include "control/ZNCoreEditorControl.h"

#include <algorithm>

namespace {

constexpr int kHeader = 0x2000;
constexpr int kNumber = 0x0FFF;
constexpr int kBase = 0x0400;
constexpr int kOwnLevel = -1; // each line's own
constexpr int kShift = 1;
constexpr int kControl = 2;
constexpr int kWholeSubtree = 100; // levels

struct MarginLook
{
    int symbol;
    unsigned long fore;
    unsigned long back;
};

struct MarginRow
{
    int marker;
    MarginLook looks[4]; // by EFoldStyle
};

constexpr unsigned long kWhite = 0xFFFFFF;
constexpr unsigned long kGrey = 0x808080;
constexpr unsigned long kDark = 0x404040;

// clang-format off
constexpr MarginRow kMargin[] = {
    //  box tree             circle tree          plus and minus    arrows
    {31, {{14, kWhite, kGrey}, {20, kWhite, kDark}, {7, kWhite, 0}, {6, 0,      0}}}, // open folder
    {30, {{12, kWhite, kGrey}, {18, kWhite, kDark}, {8, kWhite, 0}, {2, 0,      0}}}, // folder
    {29, {{ 9, kWhite, kGrey}, { 9, kWhite, kDark}, {5, kWhite, 0}, {5, 0,      0}}}, // sub
    {28, {{10, kWhite, kGrey}, {16, kWhite, kDark}, {5, kWhite, 0}, {5, 0,      0}}}, // tail
    {25, {{13, kWhite, kGrey}, {19, kWhite, kDark}, {5, kWhite, 0}, {5, kWhite, 0}}}, // end
    {26, {{15, kWhite, kGrey}, {21, kWhite, kDark}, {5, kWhite, 0}, {5, kWhite, 0}}}, // open mid
    {27, {{11, kWhite, kGrey}, {17, kWhite, kDark}, {5, kWhite, 0}, {5, kWhite, 0}}}, // mid tail
};
// clang-format on

// One header whose children are being walked.
struct Walk
{
    int visibleLevels;
    int level;
    int lastChild;
};

} // namespace

void CZNCoreEditorControl::SetFoldingMargins(EFoldStyle style)
{
    const auto column = std::min(static_cast<unsigned>(style), 3U);
    for (const MarginRow& row : kMargin) {
        const MarginLook& look = row.looks[column];
        DefineMarker(row.marker, look.symbol, look.fore, look.back);
    }
}

// Walks that are open stand in a list, not on the call stack: every line can be a header.
void CZNCoreEditorControl::Expand(int& line, bool doExpand, bool force, int visibleLevels,
                                  int level)
{
    std::vector<Walk> open;
    const auto enter = [&](int visible, int ofLines) {
        // Of kOwnLevel the mask makes the highest level, which has no children but blank lines.
        open.push_back({visible, ofLines, GetLastChild(line, ofLines & kNumber, 1)});
        ++line;
    };
    enter(visibleLevels, level);
    while (!open.empty()) {
        const Walk walk = open.back();
        if (line > walk.lastChild) {
            open.pop_back();
            continue;
        }
        if (force && walk.visibleLevels <= 0)
            HideLines(line, line, 1);
        else if (force || doExpand)
            ShowLines(line, line, 1);
        // A level that is given stands for every line, so each one is walked as a header.
        const int lineLevel = walk.level == kOwnLevel ? GetFoldLevel(line, 1) : walk.level;
        if (!(lineLevel & kHeader)) {
            ++line;
            continue;
        }
        if (force)
            SetFoldExpanded(line, walk.visibleLevels >= 2, 1);
        else if (doExpand && !GetFoldExpanded(line, 1))
            SetFoldExpanded(line, 1, 1);
        enter(walk.visibleLevels - 1, kOwnLevel);
    }
}

// The first header tells the direction for all.
bool CZNCoreEditorControl::FoldsAreToOpen(int lines)
{
    for (int line = 0; line < lines; ++line) {
        if (GetFoldLevel(line, 1) & kHeader)
            return !GetFoldExpanded(line, 1);
    }
    return true;
}

void CZNCoreEditorControl::FoldAll()
{
    Colorize(0, -1, 1); // the levels come with the styles
    const int lines = GetLineCount(1);
    const bool expanding = FoldsAreToOpen(lines);
    for (int line = 0; line < lines;) {
        const int level = GetFoldLevel(line, 1);
        if (!(level & kHeader) || (level & kNumber) != kBase) {
            ++line;
        } else if (expanding) {
            SetFoldExpanded(line, 1, 1);
            Expand(line, true, false, 0, level);
        } else {
            const int lastChild = GetLastChild(line, -1, 1);
            SetFoldExpanded(line, 0, 1);
            if (lastChild > line)
                HideLines(line + 1, lastChild, 1);
            ++line;
        }
    }
}

void CZNCoreEditorControl::FoldChanged(int line, int levelNow, int levelPrevious)
{
    const bool isHeader = levelNow & kHeader;
    const bool wasHeader = levelPrevious & kHeader;
    if (isHeader && !wasHeader)
        SetFoldExpanded(line, 1, 1);
    else if (wasHeader && !isHeader && !GetFoldExpanded(line, 1))
        Expand(line, true, false, 0, levelPrevious); // else its lines would stay hidden
}

bool CZNCoreEditorControl::MarginClick(long position, int modifiers)
{
    int line = LineFromPosition(position, 1);
    const bool shift = modifiers & kShift;
    const bool control = modifiers & kControl;
    if (shift && control) {
        FoldAll();
        return true;
    }
    const int level = GetFoldLevel(line, 1);
    if (!(level & kHeader))
        return true;
    if (!shift && !control) {
        ToggleFold(line, 1);
    } else if (control && GetFoldExpanded(line, 1)) {
        SetFoldExpanded(line, 0, 1);
        Expand(line, false, true, 0, level);
    } else {
        SetFoldExpanded(line, 1, 1);
        Expand(line, true, true, kWholeSubtree, level);
    }
    return true;
}

void CZNCoreEditorControl::EnsureRangeVisible(long from, long to)
{
    const int first = LineFromPosition(std::min(from, to), 1);
    const int last = LineFromPosition(std::max(from, to), 1);
    for (int line = first; line <= last; ++line)
        EnsureVisible(line, 1);
}

void CZNCoreEditorControl::GotoLineEnsureVisible(int line)
{
    EnsureVisibleEnforcePolicy(line, 1);
    GotoLine(line, 1);
}
