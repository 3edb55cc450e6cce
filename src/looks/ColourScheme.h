// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// ColourScheme: colours by what they are for, read from a file of the folder Schemes beside the
/// library. Knows no editor and no window.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <array>
#include <optional>

/// What is drawn beside the text, in the order of kDrawnNames.
enum class Drawn
{
    Ground,                ///< of the text
    Selection,             ///< its ground
    SelectionWithoutFocus, ///< its ground while the focus is elsewhere
    CurrentLine,           ///< its ground
    CurrentLineNumber,     ///< the number of the caret's line
    Caret,                 ///< the caret
    RightEdge,             ///< the column that lines should not pass
    Guide,                 ///< lines of indentation
    Whitespace,            ///< drawn blanks
    Margin,                ///< its ground
    Fold,                  ///< fold marks
    FoldHot,               ///< under the mouse
    FoldedLine,            ///< the line drawn where text is folded
    Bookmark,              ///< its flag
    Error,                 ///< icon and squiggle
    Warning,               ///< icon and squiggle
    LineChanged,           ///< the bar of a line that differs from the file
    LineSaved,             ///< changed and saved since the file was opened
    Batch,                 ///< the bar beside the batch at the caret
    Occurrence,            ///< the ground of the caret's word elsewhere
    Match,                 ///< the ground of what was found
    Count,                 ///< how many there are
};

/// Colours by what they are for, read from a file of the folder Schemes beside the library.
class ZN_API ColourScheme
{
public:
    /// The colours of a text, 0x00BBGGRR.
    struct Pair
    {
        COLORREF fore = 0; ///< of the text
        COLORREF back = 0; ///< of its ground

        bool operator==(const Pair&) const = default; ///< whether both say the same
    };

    /// Nothing if the file is missing, is no scheme, or lacks a colour of those above.
    static std::optional<ColourScheme> Read(const QString& path);
    static std::optional<ColourScheme> Parse(const QByteArray& bytes); ///< of such a file

    const QString& Name() const { return m_name; } ///< that editors choose it by
    bool IsDark() const { return m_isDark; }       ///< whether its ground is dark
    /// 0x00BBGGRR.
    COLORREF Of(Drawn what) const { return m_drawn[static_cast<std::size_t>(what)]; }
    /// Of a style role, by its name in Roles.xml; nothing for a role that the scheme lacks.
    std::optional<Pair> OfRole(const QString& role) const;

private:
    QString m_name;
    bool m_isDark = false;
    std::array<COLORREF, static_cast<std::size_t>(Drawn::Count)> m_drawn{};
    QHash<QString, Pair> m_roles;
};
