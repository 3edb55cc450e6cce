// SPDX-License-Identifier: GPL-3.0-or-later
// Enter between an opening bracket and its partner opens a line between the two, one step further
// in; behind an opening bracket that ends its line the next one goes in by a step. Where brackets
// get their partners by option::ClosePairs and lines are indented at all. Of several carets, and of
// those of a column, each opens its line and goes on in it. A line and the indentation that it gets
// are one step of undo, with what is typed there.
#pragma once

#include "control/Selections.h"

#include <QObject>
#include <QString>

#include <optional>
#include <vector>

class CZNCoreEditorControlEx;
class QKeyEvent;

class EnterKeys final : public QObject
{
public:
    // Over the control's window, which it has. The control outlives this.
    EnterKeys(CZNCoreEditorControlEx& control, QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // What goes in at a caret: before it, and behind it. Lines end in \n.
    struct Break
    {
        QString before;
        QString behind;
    };

    bool Press();
    std::optional<Break> InBrackets(long caret);
    QString OwnIndent(long caret);
    QString IndentOfNext(long caret); // by the option
    void Put(const Break& text);
    void PutAll(const std::vector<engine::SelectionEnds>& carets,
                const std::vector<std::optional<Break>>& breaks);

    CZNCoreEditorControlEx& m_control;
};
