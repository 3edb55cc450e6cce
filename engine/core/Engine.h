// SPDX-License-Identifier: GPL-3.0-or-later
// Engine: one window's text behind the numbered messages. Every position is translated between the
// UTF-16 units of the channel and the bytes of the stock engine, by the rows of the message table.
// Messages whose meaning is this engine's own stand in Handlers.h.
#pragma once

#include "control/EngineMessages.h"
#include "engine/changes/ChangeReporter.h"
#include "engine/colours/Colouring.h"
#include "engine/core/Columns.h"
#include "engine/core/LongLines.h"
#include "engine/core/ScriptAnalysis.h"
#include "engine/core/WholeCharacters.h"
#include "engine/errors/ErrorMarks.h"
#include "engine/looks/ChangeBars.h"
#include "engine/looks/LookPainter.h"
#include "engine/search/Searcher.h"
#include "engine/text/Raw.h"
#include "engine/text/StoredText.h"
#include "engine/text/TextEdit.h"
#include "engine/text/TextIndex.h"
#include "engine/text/Utf.h"

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>

class LongWork;

namespace engine {

class DocumentMap;
class ErrorList;

// What SearchInTarget searches and ReplaceTarget replaces. The stock engine learns of it when it
// is to replace it. Bytes, which go along with the text when it changes.
struct SearchTarget
{
    long start = 0;
    long end = 0;
    int flags = 0;

    void Follow(const TextEdit& edit)
    {
        start = edit.Moved(start);
        end = edit.Moved(end);
    }

    // What was sought last: a loop over all matches brings the same text for each of them.
    std::u16string sought;
    std::string soughtBytes; // in UTF-8
};

// How a style differs on paper. Empty: as on the screen.
struct PrintStyle
{
    std::optional<bool> bold;
    std::optional<bool> italic;
    std::optional<int> points;
    std::string font; // UTF-8
};

// An answer of the stock engine's, as of a version; 0: none.
struct KeptAnswer
{
    unsigned version = 0;
    bool value = false;
};

class Engine
{
public:
    explicit Engine(QsciScintillaBase& window);
    ~Engine();
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    // Answers a message. A number outside the table answers 0.
    LRESULT Perform(UINT message, WPARAM wParam, LPARAM lParam);

    void PrepareToPaint();

    // 0: an empty one of its own.
    void ShowDocument(LPARAM document);
    LRESULT Document() const { return m_document; }

    // A position of the channel in bytes. All negative ones mean the same, and come out as -1.
    long Bytes(LPARAM position) const;
    long Units(long position) const;
    long CaretPosition() const; // units

    // The selection of the moment, without the word to the display's server that each selection
    // costs a round trip: for a bulk change, which makes one for each of its pieces. Bytes.
    void SelectQuietly(long anchor, long caret);
    void TellSelection(); // the word for what was selected so

    // Around a key: Backspace and Delete over letters are one undo step. Other keys may end it.
    void EraseKeyBegins(bool back);
    void EraseKeyEnds();
    void EndEraseRun();

    // Before a key that types a line's end, or types where the caret has come to: with looks, what
    // it types is a step of undo of its own.
    void EndTypedStep();

    // Before anything that is no key: the runs of keys are over.
    void EndRuns();
    // A message or an event is over.
    void Settle();

    // Before the caret moves by lines: with looks, Up and Down keep the column that the host has
    // put it to. The stock engine keeps the one before.
    void AimAtCaret();
    void CaretJumps() { m_hasJumped = true; }

    // Whether changes can be undone. It is asked for each of them; whoever sets it for a document,
    // in whatever window, says so.
    bool CollectsUndo();
    static void CollectingMayChange();
    // Whether this window is the one that keeps the marks of changed lines.
    bool MarksChanges();

    // Replaces the target by the bytes, which it is then.
    void ReplaceTarget(std::string_view bytes);

    // The stock engine's own target, for what it does with one: set before, taken over behind.
    void LendTarget() const;
    void TakeTarget();

    QsciScintillaBase& window;
    const Raw raw;
    std::shared_ptr<Colouring> colouring; // of the document
    TextIndex text;
    ChangeReporter reporter;
    ScriptAnalysis analysis;

    ErrorList* errors = nullptr; // of the text that the window shows
    ChangeBars* bars = nullptr;  // of it, too
    const StoredText stored;
    search::Searcher searcher;
    LookPainter looks;
    DocumentMap* map = nullptr;                    // the window's child; null: not shown
    std::function<void(int width)> setMapRoom;     // gives the map pixels of the window
    std::function<void(std::u16string_view)> type; // as keys do
    SearchTarget target;
    const Columns columns{raw};
    LongLines longLines{*this};
    WholeCharacters wholeCharacters{*this};

    // What the stock engine has no place for.
    ErrorLook errorLook;              // as set in this window
    KeptAnswer readOnly;              // whether the text can be edited, as it was asked last
    bool noSingleEol = false;         // line-end mode 0
    bool usePopUp = true;             // the window shows a menu of its own
    bool reconciler = true;           // the analysis follows the text
    LongWork* undo = nullptr;         // an undo or redo under way
    bool bulkChange = false;          // between SetDoingReplaceAll(true) and (false)
    int copyEol = -1;                 // line-end mode of the copy under way, -1: as the text stands
    std::set<std::string> properties; // of the lexer, set so far
    PrintStyle print;
    long searchAnchor = 0;    // bytes; stays when the text changes
    int status = 0;           // as it was set; the stock engine's own tells of failures
    bool recording = false;   // of a macro
    bool isInCommand = false; // which is recorded as a whole
    std::string callTip;      // UTF-8
    int lengthForEncode = -1; // bytes; -1: up to the terminator

private:
    // After the window got another document: the index belongs to the document.
    void PrepareDocument();
    void EditBegins(const TextEdit& edit); // while the text is as it was
    void KeepFirstLineVisible(const TextEdit& edit) const;
    void NoteUncollected(const TextEdit& edit);
    LRESULT Translate(const MessageRow& row, WPARAM wParam, LPARAM lParam);

    LRESULT m_document = 0;
    KeptAnswer m_collectsUndo;
    bool m_showsCharacters = false;
    bool m_owesSelection = false; // it has not been told
    bool m_hasJumped = false;     // the caret, since it last moved by lines
};

} // namespace engine
