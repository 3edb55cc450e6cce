// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CColorPref: the colours of a language's styles.
#pragma once

#include "looks/ColourScheme.h"
#include "prefs/pages/EditorPrefsSubDlg.h"

#include <QMap>

#include <memory>

class StyleColours;
class StyleSample;

/// The colours of a language's styles.
class ZN_API CColorPref final : public CEditorPrefsSubDlg
{
public:
    CColorPref(); ///< without a window
    ~CColorPref() override;

    void Apply() override; ///< every style

protected:
    void OnBuild(QWidget* window) override;
    bool OnInitDialog() override;
    void OnControl(UINT id, UINT code) override;
    const MessageMap& GetMessageMap() const override;
    const CommandMap& GetCommandMap() const override;

private:
    using Colors = QMap<int, COLORREF>; // by the style's number

    void ReadColors(CSyntaxFile& file);
    int CurrentStyle() const; // -1 if there is none
    ColourScheme::Pair Own(int style) const;
    void ShowStyle();
    void ShowButton(UINT id, COLORREF own, COLORREF delivered, COLORREF painted);
    void OnColorChosen(UINT id, COLORREF color);
    void OnResetColors();

    Colors m_foreground;
    Colors m_background;
    std::unique_ptr<StyleColours> m_painted; // null without a scheme that paints over
    StyleSample* m_sample = nullptr;
};
