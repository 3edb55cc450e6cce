// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/looks/StyleColours.h"

#include "looks/DeliveredColours.h"
#include "looks/Schemes.h"
#include "settings/SyntaxFile.h"

const QHash<int, ColourScheme::Pair>& DeliveredColoursOf(const CSyntaxFile& syntax)
{
    static QHash<QString, QHash<int, ColourScheme::Pair>> all;
    const QString& file = syntax.GetFilename();
    auto found = all.find(file);
    if (found == all.end())
        found = all.insert(file, ReadDeliveredColours(file));
    return *found;
}

StyleColours::StyleColours(const ColourScheme& scheme, CSyntaxFile& syntax)
    : m_scheme(scheme), m_delivered(DeliveredColoursOf(syntax)), m_syntax(syntax),
      m_language(syntax.GetFilename().section(u'/', -1)),
      m_text(scheme.OfRole(QStringLiteral("text")).value_or(Pair{}))
{}

QString StyleColours::RoleOf(int style) const
{
    return zncoreeditor::GetStyleRoles().RoleOf(m_language, m_syntax.GetStyleName(style));
}

StyleColours::Pair StyleColours::Of(int style) const
{
    return Of(style, {static_cast<COLORREF>(m_syntax.GetStyleColorForeground(style)),
                      static_cast<COLORREF>(m_syntax.GetStyleColorBackground(style))});
}

StyleColours::Pair StyleColours::Of(int style, Pair own) const
{
    const QString name = m_syntax.GetStyleName(style);
    if (name.isEmpty())
        return m_text;
    const Pair painted = m_scheme.OfRole(RoleOf(style)).value_or(own);
    const auto delivered = m_delivered.constFind(style);
    if (delivered == m_delivered.constEnd())
        return painted;
    return {own.fore == delivered->fore ? painted.fore : own.fore,
            own.back == delivered->back ? painted.back : own.back};
}
