// SPDX-License-Identifier: GPL-3.0-or-later
// ChangeReporter: tells the parent window what happens in an engine window, in UTF-16 units.
//
// Text changes are noted before they happen and told once they are in the text: at the next
// notification of any kind, or when the message that made them returns, whichever is first. The
// stock engine's own news of a change runs a hook that counts characters from the text's start.
// A save point that is left by a change is told after the change.
#pragma once

#include "control/EngineMessages.h"
#include "engine/colours/Colouring.h"
#include "engine/text/TextEdit.h"
#include "engine/text/TextIndex.h"
#include "engine/text/Utf.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace engine {

class ChangeReporter
{
public:
    ChangeReporter(QsciScintillaBase& window, const Raw& raw, TextIndex& text);
    ~ChangeReporter();
    ChangeReporter(const ChangeReporter&) = delete;
    ChangeReporter& operator=(const ChangeReporter&) = delete;

    // Of the document: it hears of changes before they happen, and what styles are needed.
    void SetColouring(std::shared_ptr<Colouring> colouring)
    {
        m_colouring = std::move(colouring);
        m_lines = -1;
    }

    // Called for each change before it is noted, while the text is as it was.
    void SetFollower(std::function<void(const TextEdit& edit)> follow)
    {
        m_follow = std::move(follow);
    }

    // Called for each change once it is in the text, before it is told. The end is behind what was
    // put in if that has line ends, and else the position. Bytes.
    void SetMarker(std::function<void(long position, long end)> mark)
    {
        m_markChange = std::move(mark);
    }

    // Called before each command that can be recorded for a macro, while the stock engine tells of
    // them. False: it is not told.
    void SetCommandListener(std::function<bool(UINT number)> listen)
    {
        m_listen = std::move(listen);
    }

    // Whether typed characters are told.
    void TellTyped(bool tells) { m_tellsTyped = tells; }

    int ModEventMask() const { return m_mask; }
    void SetModEventMask(int mask);
    // Lets the window hear of changed styles, whoever else does.
    void HearStyles(bool hear);

    // Tells what waits, in every window of the process: a document may stand in several. While no
    // Scope lives, also that a message or an event is over, to who has asked for that.
    static void FlushAll();
    static bool AnyPending() { return s_pending > 0; }

    // While one of these lives, an insertion of so many bytes is the text of the caller's, which
    // need not be made out of the bytes again: what a load tells of would take a quarter of its
    // time. The text stays where it is until the message is answered. One with halves of pairs is
    // not taken.
    class Source
    {
    public:
        Source(ChangeReporter& reporter, std::u16string_view text, std::size_t bytes);
        ~Source() { m_reporter.m_offered = {}; }
        Source(const Source&) = delete;
        Source& operator=(const Source&) = delete;

    private:
        ChangeReporter& m_reporter;
    };

    // Before an exception leaves the message that offers one.
    void ForgetSource()
    {
        m_offered = {};
        m_change.source = {};
    }

    // While one of these lives, somebody will call FlushAll; else a queued call does.
    struct Scope
    {
        Scope() { ++s_depth; }
        ~Scope() { --s_depth; }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
    };

    // Runs what must not happen inside a change of a text, and so not in a notification that comes
    // from there: at once, or when the changes under way are told.
    static void WhenSettled(QObject* context, std::function<void()> act);

    // No message and no event is under way.
    static bool IsOver() { return s_depth == 0; }

    static bool IsInsideChange() { return s_inside > 0; }

    // What the stock engine says of a modification, which the window hands on.
    void OnModified(int position, int type, int length, int line, int foldNow, int foldPrev,
                    int token, int annotationLinesAdded);

    // Fills in the sender and sends the record, after what waits.
    void Tell(UINT code, SCNotification record = {});

private:
    struct Offered
    {
        std::u16string_view text;
        long bytes = 0;
    };

    struct Change
    {
        int type = 0; // 0: none waits
        BytePos position;
        long bytes = 0;
        UnitPos unit;
        std::u16string_view source; // what was offered for the insertion
        bool isBehindCr = false;
        bool told = false;   // to the parent
        bool spoken = false; // to assistive technology
    };

    void Connect();
    void ConnectLists();
    void ConnectMouse();
    void OnSavePoint(UINT code);
    void OnStyleNeeded(int position);
    void OnMacroRecord(UINT number, unsigned long wParam, void* lParam);
    void Note(int type, BytePos position, long bytes);
    void Flush();
    void TellOver();
    void TellChange(int type);
    void MarkChange(bool addsLines) const;
    std::string_view ReadChange(Utf16Text& text);
    long LinesAdded(bool isPlain);
    void Speak(const SCNotification& record) const;
    void Send(UINT code, SCNotification& record);
    bool HasListener();
    long Units(long position) const { return m_text.ToUnits({position}).value; }

    QsciScintillaBase& m_window;
    const Raw& m_raw;
    TextIndex& m_text;
    std::shared_ptr<Colouring> m_colouring;
    int m_mask = kDefaultModEventMask;
    int m_heard = 0; // bits beside those of the mask
    Change m_change;
    Offered m_offered;
    SCNotification m_blank; // to copy one is quicker than to blank it
    long m_lines = -1;      // in the text as it was told last; -1: not known
    bool m_hasListener = false;
    bool m_tellsTyped = true;
    bool m_asksOver = false; // the parent wants to hear when this is over
    UINT m_id = 0;           // of the window, as soon as it has one
    std::function<void(const TextEdit&)> m_follow;
    std::function<void(long position, long end)> m_markChange;
    std::function<bool(UINT number)> m_listen;
    Utf16Text m_changed;            // text of a noted deletion; storage otherwise
    std::vector<UINT> m_savePoints; // told behind the change

    static int s_pending;
    static int s_depth;
    static int s_noting;
    static int s_telling; // notifications under way
    static int s_inside;  // notifications that come from inside a change
};

} // namespace engine
