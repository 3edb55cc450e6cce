// SPDX-License-Identifier: GPL-3.0-or-later
// ColourScheme: colours by what they are for, read from a file of the folder Schemes beside the
// library. Knows no editor and no window.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <array>
#include <optional>

// What is drawn beside the text, in the order of kDrawnNames.
enum class Drawn
{
    Ground, // of the text
    Selection,
    SelectionWithoutFocus,
    CurrentLine,
    CurrentLineNumber,
    Caret,
    RightEdge,
    Guide,
    Whitespace,
    Margin,
    Fold,
    FoldHot, // under the mouse
    FoldedLine,
    Bookmark,
    Error,
    Warning,
    LineChanged,
    LineSaved, // changed and saved since the file was opened
    Batch,     // the bar beside the batch at the caret
    Occurrence,
    Match,
    Count,
};

class ZN_API ColourScheme
{
public:
    struct Pair
    {
        COLORREF fore = 0;
        COLORREF back = 0;

        bool operator==(const Pair&) const = default;
    };

    // Nothing if the file is missing, is no scheme, or lacks a colour of those above.
    static std::optional<ColourScheme> Read(const QString& path);
    static std::optional<ColourScheme> Parse(const QByteArray& bytes); // of such a file

    const QString& Name() const { return m_name; }
    bool IsDark() const { return m_isDark; }
    COLORREF Of(Drawn what) const { return m_drawn[static_cast<std::size_t>(what)]; }
    // Of a style role, by its name in Roles.xml; nothing for a role that the scheme lacks.
    std::optional<Pair> OfRole(const QString& role) const;

private:
    QString m_name;
    bool m_isDark = false;
    std::array<COLORREF, static_cast<std::size_t>(Drawn::Count)> m_drawn{};
    QHash<QString, Pair> m_roles;
};
