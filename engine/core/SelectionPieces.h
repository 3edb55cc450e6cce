// SPDX-License-Identifier: GPL-3.0-or-later
// SelectionPieces: what is selected in several places, on the clipboard. The stock engine puts all
// of it in a row, and all of that in each place.
#pragma once

#include "engine/text/Raw.h"

#include <QByteArray>
#include <QList>
#include <QMimeData>

#include <optional>

namespace engine {

class SelectionPieces
{
public:
    // Those of the selections, in the order of the text. Nothing unless the text is what the stock
    // engine makes of several of them.
    static std::optional<SelectionPieces> Of(const Raw& raw, const QByteArray& text);

    // Those that were told beside the text. Nothing if they do not fit it.
    static std::optional<SelectionPieces> From(const QMimeData& source, const QByteArray& text);

    // With a line end between two of them.
    QByteArray Text() const;
    void TellIn(QMimeData& data) const;

    // One in each selection, as one step of undo; the carets stand behind them. False, and nothing
    // happens, unless there are as many selections as pieces.
    bool Paste(const Raw& raw) const;

private:
    QList<QByteArray> m_pieces;
    QByteArray m_lineEnd;
};

} // namespace engine
