// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/hands/CodePlaces.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "editing/looks/StyleColours.h"

#include <QSet>

bool hands::IsInStringOrComment(CZNCoreEditorControlEx& editor, long caret)
{
    static const QSet<QString> kRoles = {
        QStringLiteral("comment"),  QStringLiteral("documentation"),
        QStringLiteral("string"),   QStringLiteral("documentationKeyword"),
        QStringLiteral("unclosed"), QStringLiteral("quotedName"),
    };
    const ColourScheme* scheme = editor.Scheme();
    CSyntaxFile* syntax =
        zncoreeditor::GetFileTypeManager()->GetSyntaxFile(editor.GetCurrentLanguage());
    if (!scheme || !syntax || caret == 0)
        return false;
    // A block comment or a quoted name is over behind its last mark.
    const auto unitAt = [&](long place) { return editor.GetCharAt(place, 1); };
    const int before = unitAt(caret - 1);
    if (before == u']' || before == u'`' ||
        (before == u'/' && caret > 1 && unitAt(caret - 2) == u'*'))
        return false;
    const int line = editor.LineFromPosition(caret, 1);
    editor.Colorize(editor.PositionFromLine(line, 1), caret, 1);
    const int style = editor.GetStyleAt(caret - 1, 1) & 0xFF;
    return kRoles.contains(StyleColours(*scheme, *syntax).RoleOf(style));
}
