// SPDX-License-Identifier: GPL-3.0-or-later
// Which line ends a text has, and an object that keeps the answer up to date for a status bar.
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>
#include <string_view>

class CZNCoreEditorControl;
class TextPieces;

enum class LineEndKind
{
    None, // one line only
    CrLf,
    Lf,
    Cr,
    Mixed // two kinds or more
};

// "CR LF", "LF", "CR" or "Mixed"; for a text of one line the name of what Enter would put in, by
// the mode of the control (Encodings).
QString LineEndText(LineEndKind kind, int mode);

// A text that comes in pieces; a CR LF may be divided between two of them.
class LineEndCount
{
public:
    void Add(std::u16string_view piece);
    bool IsMixed() const; // the rest of the text cannot change the answer
    LineEndKind Kind() const;

private:
    bool m_seen[3] = {}; // CR LF, LF, CR
    bool m_held = false; // a CR at the end of the last piece
};

// Looks at the text of an editor when it is told to, and some time after the last change: a slice
// at a time from the event loop, so that a long text never stalls the window.
class LineEndWatch final : public QObject
{
    Q_OBJECT

public:
    // The editor outlives the watch.
    LineEndWatch(CZNCoreEditorControl& editor, QObject* parent);
    ~LineEndWatch() override;

    LineEndKind Kind() const { return m_kind; } // of the last look that came to its end
    bool IsLooking() const { return m_pieces != nullptr || m_rest.isActive(); }

    void Look();        // from the start, and at once: for a text that was just loaded
    void TextChanged(); // what was seen so far may be wrong; looks again once the text rests

Q_SIGNALS:
    void KindChanged();

private:
    void LookAtSlice();

    CZNCoreEditorControl& m_editor;
    QTimer m_rest;                        // since the last change
    QTimer m_slice;                       // to the next slice
    std::unique_ptr<TextPieces> m_pieces; // null while nothing is looked at
    LineEndCount m_count;
    LineEndKind m_kind = LineEndKind::None;
};
