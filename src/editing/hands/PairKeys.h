// SPDX-License-Identifier: GPL-3.0-or-later
// An opening bracket or a quote that is typed gets its partner, where the options say so and what
// stands around the caret leaves room for one. The partner is stepped over by typing it, and goes
// with the opening one by Backspace, as long as the caret has not left the two.
#pragma once

#include <QObject>

#include <vector>

class CZNCoreEditorControlEx;
class QKeyEvent;

class PairKeys final : public QObject
{
public:
    // Over the control's window, which it has. The control outlives this.
    PairKeys(CZNCoreEditorControlEx& control, QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Two that were put in. What is typed between them moves neither place.
    struct Pair
    {
        long open = 0;   // place of the opening one, in units
        long behind = 0; // units of the text from the closing one on
        char16_t closes = 0;
    };

    bool Press(QKeyEvent& event);
    bool MayGetPartner(char16_t typed, long caret);
    bool TypePair(QKeyEvent& event, char16_t closes);
    char16_t UnitAt(long position);
    void DropLeft();

    CZNCoreEditorControlEx& m_control;
    std::vector<Pair> m_pairs; // each inside of the one before
    bool m_isTyping = false;
};
