// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CColorButton: a push button that shows a colour and drops down a palette to choose another;
/// a QPushButton.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"
#include "prefs/controls/ColorPopup.h"

#include <QPointer>
#include <QPushButton>

/// What a colour button sends to the window around it: wParam is the button's number, lParam the
/// colour that is meant, kDefaultColor for the default.
namespace colornews {
inline constexpr UINT Changed = 2025;   ///< another colour is chosen, or lies under the cursor
inline constexpr UINT Opened = 2026;    ///< the palette is there
inline constexpr UINT Closed = 2027;    ///< the palette goes, in either way
inline constexpr UINT Chosen = 2028;    ///< a colour was chosen
inline constexpr UINT Cancelled = 2029; ///< none was
} // namespace colornews

/// A push button that shows a colour and drops down a palette to choose another; a QPushButton.
class ZN_API CColorButton : public QPushButton
{
    Q_OBJECT

public:
    /// Stands for the default.
    static constexpr COLORREF kDefaultColor = ZNCEColorPopup::kDefaultColor;

    explicit CColorButton(QWidget* parent = nullptr); ///< of the default colour
    ~CColorButton() override;

    COLORREF GetColor() const { return m_color; } ///< kDefaultColor for the default
    void SetColor(COLORREF color);                ///< tells nobody
    /// What is shown for kDefaultColor.
    COLORREF GetDefaultColor() const { return m_defaultColor; }
    void SetDefaultColor(COLORREF color); ///< at first the desktop's of work areas
    /// Of the cell for the default; empty: there is none.
    const QString& GetDefaultText() const { return m_defaultText; }
    /// Of the cell for the default; empty leaves it out.
    void SetDefaultText(const QString& text) { m_defaultText = text; }
    /// Of the cell for further colours.
    const QString& GetCustomText() const { return m_customText; }
    /// Of the cell for further colours; empty leaves it out.
    void SetCustomText(const QString& text) { m_customText = text; }
    /// The button shows each colour that the cursor passes, and tells of it.
    bool GetTrackSelection() const { return m_isTracking; }
    void SetTrackSelection(bool track) { m_isTracking = track; } ///< off at first

    bool IsPopupDown() const { return m_isDown; }     ///< the palette is there
    ZNCEColorPopup* Popup() const { return m_popup; } ///< null while there is none

    QSize sizeHint() const override; ///< with room for the colour and the arrow

protected:
    void paintEvent(QPaintEvent* event) override;  ///< the button, its colour and its arrow
    void keyPressEvent(QKeyEvent* event) override; ///< down drops the palette

private:
    void DropDown();
    void OnHovered(COLORREF color);
    void OnChosen(COLORREF color);
    void OnCustomWanted();
    void OnCancelled();
    void Tell(UINT code, COLORREF color) const;
    COLORREF ShownColor() const;
    void Describe();

    COLORREF m_color = kDefaultColor;
    COLORREF m_defaultColor;
    QString m_defaultText = tr("Default");
    QString m_customText = tr("More Colors...");
    bool m_isDown = false;
    bool m_isTracking = false;

    COLORREF m_colorBefore = kDefaultColor; // while the palette is down
    QPointer<ZNCEColorPopup> m_popup;
};
