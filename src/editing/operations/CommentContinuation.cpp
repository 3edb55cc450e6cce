// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: Enter inside a comment. The characters are those of SQL and C, whatever
// the language.
#include "editing/ZNCoreEditorControlEx.h"

#include "editing/operations/EditScopes.h"
#include "editing/text/Comments.h"
#include "platform/services/OptionsServer.h"

#include <QStringView>

namespace {

// Without white space in front. The line's last character is left out: in a text of CR LF that
// leaves the CR, which does not keep a blank line from being blank.
QString WithoutIndent(QString line)
{
    line.chop(1);
    const auto isSpace = [](QChar c) { return c.isSpace(); };
    return line.sliced(std::find_if_not(line.cbegin(), line.cend(), isSpace) - line.cbegin());
}

} // namespace

// How many block comments are open in front of the position. Behind each hit the search goes on one
// unit further.
int CZNCoreEditorControlEx::CommentDepth(long position)
{
    const PlainSearch plain(*this);
    const auto to = static_cast<int>(position);
    const auto count = [this, to](const char16_t* marker) {
        int found = 0;
        for (int at = FindInTarget(marker, -1, 0, to); at >= 0;
             at = FindInTarget(marker, -1, at + 1, to))
            ++found;
        return found;
    };
    const int depth = count(u"/*") - count(u"*/");
    SetTarget(to, 0);
    return depth;
}

bool CZNCoreEditorControlEx::AutomaticCommenting()
{
    if (!CZNOptionsServer::GetObjectW()->GetBool(option::ContinueComments))
        return false;
    const long caret = GetCurrentPos(1);
    const QString previous = WithoutIndent(GetLineText(LineFromPosition(caret, 1) - 1));
    const auto [text, ifOpen] =
        comments::ContinuationOf({reinterpret_cast<const char16_t*>(previous.utf16()),
                                  static_cast<std::size_t>(previous.size())});
    if (text.empty() || (ifOpen && CommentDepth(caret) <= 0))
        return false;
    InsertText(caret, text.data(), 1);
    const long behind = caret + static_cast<long>(text.size());
    SetSel(behind, behind, 1);
    return ifOpen;
}
