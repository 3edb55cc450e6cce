// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// StyleSample: a few lines of a language in its styles, painted by the engine. It takes colours
/// and fonts as they are tried out, before any of them is a setting.
#pragma once

#include "common/Export.h"
#include "control/ZNCoreEditorControl.h"
#include "looks/ColourScheme.h"

#include <QFrame>
#include <QHash>

#include <memory>

class CSyntaxFile;

/// How a style's font is shown.
struct SampleFont
{
    QString name;           ///< empty and 0: what the default style has
    int size = 0;           ///< points
    bool bold = false;      ///< whether it is bold
    bool italic = false;    ///< whether it is slanted
    bool underline = false; ///< whether it is underlined
};

/// A few lines of a language in its styles, painted by the engine.
class ZN_API StyleSample final : public QFrame
{
    Q_OBJECT

public:
    explicit StyleSample(QWidget* parent = nullptr); ///< empty; Show fills it
    ~StyleSample() override;

    /// The text, words and styles of the language. Without an engine nothing is shown.
    void Show(CSyntaxFile& syntax);
    void SetStyleColors(int style, ColourScheme::Pair colors); ///< until the next Show
    void SetStyleFont(int style, const SampleFont& font);      ///< until the next Show
    /// In which the style was shown by Show, or since.
    ColourScheme::Pair ColorsOf(int style) const
    {
        return m_colors.value(style, {0x000000, 0xFFFFFF});
    }
    /// The control, to look at; null without an engine.
    CZNCoreEditorControl* Control() const { return m_control.get(); }

private:
    std::unique_ptr<CZNCoreEditorControl> m_control;
    QHash<int, ColourScheme::Pair> m_colors;
};
