// SPDX-License-Identifier: GPL-3.0-or-later
// InputMethod: what an input method asks of an engine window, and the composition that it shows.
// A composition is drawn over the text at the caret and never stands in it: so it is in no undo
// step, is told to nobody, and is gone without a trace when it is given up.
#pragma once

#include "engine/core/Engine.h"

#include <QInputMethodEvent>
#include <QVariant>

class QPainter;

namespace engine {

class InputMethod
{
public:
    explicit InputMethod(Engine& engine) : m_engine(engine) {}

    // Answers in UTF-16 units of the caret's line, or of some thousand units around the caret if
    // the line is longer. Not valid for what only the widget knows.
    QVariant Answer(Qt::InputMethodQuery query) const;

    // Takes what the event takes away, and shows its composition. The committed text is left to
    // the caller, who types it.
    void Begin(const QInputMethodEvent& event);
    void Discard();

    bool IsComposing() const { return !m_preedit.isEmpty(); }
    void Draw(QPainter& painter) const;

private:
    // A piece of the caret's line, in bytes.
    struct Surroundings
    {
        long start = 0;
        long end = 0;
        long caret = 0;
    };

    bool IsReadOnly() const;
    long Get(UINT number) const; // a position in bytes
    long Caret() const { return Get(QsciScintillaBase::SCI_GETCURRENTPOS); }
    long CharacterStart(long position) const;
    Surroundings Around() const;
    QString Text(long start, long end) const;
    int Units(long start, long end) const;
    QString Selection() const;
    QFont Font() const;
    QRect CaretRectangle() const;
    void RemoveReplaced(const QInputMethodEvent& event) const;

    Engine& m_engine;
    QString m_preedit;
    int m_cursor = 0;          // in the composition
    bool m_showsCursor = true; // the method may hide it
};

} // namespace engine
