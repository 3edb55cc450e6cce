// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/looks/SchemeSettings.h"

#include "editing/language/FileTypeManager.h"
#include "looks/Schemes.h"
#include "settings/ConfigFile.h"
#include "settings/SyntaxFile.h"

namespace {

constexpr int kLastStyle = 127;

void WriteStyles(const ColourScheme& scheme, CSyntaxFile& syntax)
{
    const QString language = syntax.GetFilename().section(u'/', -1);
    for (int style = 0; style <= kLastStyle; ++style) {
        const QString name = syntax.GetStyleName(style);
        if (name.isEmpty())
            continue;
        const auto colours = scheme.OfRole(zncoreeditor::GetStyleRoles().RoleOf(language, name));
        if (!colours)
            continue;
        const auto fore = static_cast<int>(colours->fore);
        const auto back = static_cast<int>(colours->back);
        if (syntax.GetStyleColorForeground(style) != fore)
            syntax.SetStyleColorForeground(style, fore);
        if (syntax.GetStyleColorBackground(style) != back)
            syntax.SetStyleColorBackground(style, back);
    }
}

} // namespace

void WriteScheme(const ColourScheme& scheme, CConfigFile& config, CFileTypeManager& languages)
{
    for (int language = 0; language < languages.GetLanguageCount(); ++language) {
        CSyntaxFile* syntax = languages.GetSyntaxFile(language);
        if (syntax && syntax->Parse())
            WriteStyles(scheme, *syntax);
    }
    config.SetCaretColor(scheme.Of(Drawn::Caret));
    config.SetSelectionBackgroundColor(scheme.Of(Drawn::Selection));
    config.SetHighlightCurrentLineColor(scheme.Of(Drawn::CurrentLine));
    config.SetRightEdgeColor(scheme.Of(Drawn::RightEdge));
}
