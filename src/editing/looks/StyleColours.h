// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// StyleColours: the colours in which a language's styles are painted with a scheme.
#pragma once

#include "common/Export.h"
#include "looks/ColourScheme.h"

#include <QHash>
#include <QString>

class CSyntaxFile;

/// A style's colour that is as it was delivered takes the scheme's; any other was chosen by a
/// person, and stays. The scheme and the file have to outlive this.
class ZN_API StyleColours
{
public:
    using Pair = ColourScheme::Pair; ///< text and ground

    /// The file is that of the language.
    StyleColours(const ColourScheme& scheme, CSyntaxFile& syntax);

    Pair Of(int style) const;           ///< with the colours that the file has
    Pair Of(int style, Pair own) const; ///< with these in their place
    QString RoleOf(int style) const;    ///< empty for one without

private:
    const ColourScheme& m_scheme;
    const QHash<int, Pair>& m_delivered;
    CSyntaxFile& m_syntax;
    QString m_language;
    Pair m_text;
};

/// What the file was delivered with, by the number of the style; read once in the process.
ZN_API const QHash<int, ColourScheme::Pair>& DeliveredColoursOf(const CSyntaxFile& syntax);
