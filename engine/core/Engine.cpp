// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/Engine.h"

#include "control/Selections.h"
#include "engine/core/CaretSteps.h"
#include "engine/core/Documents.h"
#include "engine/core/EraseRun.h"
#include "engine/core/ErrorList.h"
#include "engine/core/Fences.h"
#include "engine/core/Handlers.h"
#include "engine/looks/DocumentMap.h"
#include "engine/text/Characters.h"
#include "engine/text/ShownCharacters.h"
#include "platform/services/LongWork.h"

#include <array>
#include <utility>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr UINT kFirstNumber = 2000;
constexpr UINT kNumbers = 2048;

unsigned undoVersion = 1; // of all answers whether changes are collected

enum class CaretMove : unsigned char
{
    None,
    Jump,   // to a place that the host names
    ByLines // in the column that is aimed at
};

constexpr UINT kJumps[] = {message::GotoLine, message::GotoPos, message::SetSel,
                           message::SetCurrentPos, kSetSelections};
// First and last of each row of numbers: lines and pages, columns, and pages that stop at the edge.
constexpr std::pair<UINT, UINT> kByLines[] = {
    {Sci::SCI_LINEDOWN, Sci::SCI_LINEUPEXTEND},
    {Sci::SCI_PAGEUP, Sci::SCI_PAGEDOWNEXTEND},
    {Sci::SCI_LINEDOWNRECTEXTEND, Sci::SCI_LINEUPRECTEXTEND},
    {Sci::SCI_PAGEUPRECTEXTEND, Sci::SCI_PAGEDOWNRECTEXTEND},
    {Sci::SCI_STUTTEREDPAGEUP, Sci::SCI_STUTTEREDPAGEDOWNEXTEND},
};

// What answers a number: nothing, a handler, the stock engine as it is, or the row's translation.
struct Answerer
{
    enum class Way : unsigned char
    {
        None,
        Pass,
        Translate,
        Handle
    };
    Way way = Way::None;
    const MessageRow* row = nullptr;
    Handler handler = nullptr;
    Fence fence = nullptr; // of a row that is translated
    CaretMove move = CaretMove::None;
};

constexpr bool IsPlain(Kind kind)
{
    return kind != Kind::Pos && kind != Kind::Span && kind != Kind::TextIn && kind != Kind::Line;
}

// Numbers of the analysis, which mean something else to the stock engine.
constexpr bool IsOfTheAnalysis(UINT number)
{
    return (number >= message::ErrorAdd && number <= message::PartitionerInit) ||
           (number >= message::ErrorsSetMarkNum && number <= message::GetIsReconcilerEnabled);
}

using Answerers = std::array<Answerer, kNumbers>;

const Answerers& AllAnswerers()
{
    static const Answerers answerers = [] {
        Answerers all;
        for (const MessageRow& row : kMessageRows) {
            Answerer& answerer = all[row.number - kFirstNumber];
            answerer.row = &row;
            if (IsOfTheAnalysis(row.number))
                continue; // until a handler says otherwise
            answerer.way = IsPlain(row.result) && IsPlain(row.wParam) && IsPlain(row.lParam)
                               ? Answerer::Way::Pass
                               : Answerer::Way::Translate;
        }
        for (const auto handlers :
             {TextHandlers(), CaseHandlers(), PositionHandlers(), SettingHandlers(),
              PrintHandlers(), DocumentHandlers(), ImageHandlers(), ErrorHandlers(),
              AnalysisHandlers(), SearchHandlers(), LineHandlers(), ListHandlers(),
              MarginTextHandlers(), LookHandlers(), SelectionHandlers()}) {
            for (const HandlerRow& row : handlers) {
                Answerer& answerer = all[row.number - kFirstNumber];
                answerer.handler = row.run;
                answerer.way = Answerer::Way::Handle;
            }
        }
        for (const FenceRow& row : Fences()) {
            Answerer& answerer = all[row.number - kFirstNumber];
            answerer.fence = row.admits;
            answerer.way = Answerer::Way::Translate;
        }
        for (const UINT number : kJumps)
            all[number - kFirstNumber].move = CaretMove::Jump;
        for (const auto& [first, last] : kByLines) {
            for (UINT number = first; number <= last; ++number)
                all[number - kFirstNumber].move = CaretMove::ByLines;
        }
        return all;
    }();
    return answerers;
}

// A line outside the text is clamped: the stock engine's own tables are not asked behind their end.
long ClampedLine(const Raw& raw, long line)
{
    return line < 0 ? -1 : std::min(line, raw.LineCount());
}

} // namespace

Engine::Engine(QsciScintillaBase& widget)
    : window(widget), raw(widget), text(raw), reporter(widget, raw, text), analysis(*this),
      stored(raw, text), searcher(stored), looks(widget, raw, stored)
{
    PrepareDocument();
    reporter.SetFollower([this](const TextEdit& edit) { EditBegins(edit); });
    // A load, which nobody can undo, changes no line.
    reporter.SetMarker([this](long position, long end) {
        if (map)
            map->EditEnds();
        if (MarksChanges())
            bars->EditEnds(raw, position, end);
        // The stock engine forgets the markers of a text that goes whole, and what it has drawn.
        if (raw.Length() == 0)
            window.viewport()->update();
    });
    reporter.SetCommandListener([this](UINT number) {
        wholeCharacters.OnCommand(number);
        return recording;
    });
    looks.SetStatementAtCaret([this]() -> std::optional<LookPainter::Range> {
        const auto span = analysis.StatementAt(CaretPosition());
        if (!span)
            return std::nullopt;
        return LookPainter::Range{Bytes(span->start), Bytes(span->end)};
    });
    SettleErrorsWhenShown(*this);
}

Engine::~Engine()
{
    documents::Left(m_document, *this);
}

void Engine::ShowDocument(LPARAM document)
{
    errors->Settle(*this);
    // The stock engine lets its document go before it takes the next, which may be the same.
    const LPARAM kept = m_document;
    raw.Send(Sci::SCI_ADDREFDOCUMENT, 0, kept);
    raw.Send(Sci::SCI_SETDOCPOINTER, 0, document);
    raw.Send(Sci::SCI_RELEASEDOCUMENT, 0, kept);
    target.start = target.end = 0;
    PrepareDocument();
}

void Engine::PrepareDocument()
{
    const LRESULT left = m_document;
    m_document = raw.Send(Sci::SCI_GETDOCPOINTER);
    documents::Shown(m_document, *this);
    documents::Left(left, *this);
    raw.Send(Sci::SCI_SETCODEPAGE, Sci::SC_CP_UTF8);
    m_showsCharacters = false;
    text.Reset();
    ChangeBars::MarksMayGo();
    looks.ShowMatchesWithin({});
    readOnly = {};
    m_collectsUndo = {};
    colouring = documents::ColouringOf(m_document);
    reporter.SetColouring(colouring);
    errors = &documents::Errors(m_document);
    bars = &documents::ChangeBarsOf(m_document);
    if (errors->Look() == ErrorLook())
        errors->SetLook(*this, errorLook);
    analysis.Forget();
    StoredText::WordsMayChange();
    if (map)
        map->Forget();
}

// Letters are shown in some way once there may be any: what is kept of each costs memory.
void Engine::PrepareToPaint()
{
    if (m_showsCharacters || text.IsAscii())
        return;
    m_showsCharacters = true;
    ShowCharacters(raw);
}

LRESULT Engine::Perform(UINT message, WPARAM wParam, LPARAM lParam)
{
    static const Answerers& answerers = AllAnswerers();
    const UINT slot = message - kFirstNumber;
    if (slot >= kNumbers)
        return 0;
    if ((EraseRun::AnyIsOpen() || CaretSteps::AnyIsOpen()) && EraseRun::IsEndedBy(message) &&
        !documents::CaretStepsOf(m_document).IsBeginningLine())
        EndRuns();
    const Answerer& answerer = answerers[slot];
    if (answerer.move == CaretMove::Jump)
        CaretJumps();
    else if (answerer.move == CaretMove::ByLines)
        AimAtCaret();
    LRESULT result = 0;
    {
        const ChangeReporter::Scope scope;
        const CaretSteps::Acting acting(*this);
        if (!ChangeReporter::IsInsideChange())
            columns.Settle();
        const bool keepsWhole = text.MayHaveNoncharacters();
        if (keepsWhole)
            wholeCharacters.Begin();
        switch (answerer.way) {
        case Answerer::Way::None:
            return 0;
        case Answerer::Way::Pass:
            result = raw.Send(message, wParam, lParam);
            break;
        case Answerer::Way::Translate:
            if (!answerer.fence || answerer.fence(*this, wParam, lParam))
                result = Translate(*answerer.row, wParam, lParam);
            break;
        case Answerer::Way::Handle:
            result = answerer.handler(*this, wParam, lParam);
            break;
        }
        if (keepsWhole)
            wholeCharacters.End();
    }
    Settle();
    if (ChangeReporter::AnyPending()) // from here on the window may be gone
        ChangeReporter::FlushAll();
    return result;
}

bool Engine::CollectsUndo()
{
    if (m_collectsUndo.version != undoVersion)
        m_collectsUndo = {undoVersion, raw.Send(Sci::SCI_GETUNDOCOLLECTION) != 0};
    return m_collectsUndo.value;
}

void Engine::CollectingMayChange()
{
    ++undoVersion;
}

// The stock engine cannot hide the first line, and aborts or runs for ever when a deletion has made
// a hidden line the first.
void Engine::KeepFirstLineVisible(const TextEdit& edit) const
{
    if (edit.inserts || edit.position > 0 || raw.Send(Sci::SCI_GETALLLINESVISIBLE))
        return;
    const auto next = raw.Send(Sci::SCI_LINEFROMPOSITION, static_cast<WPARAM>(edit.bytes));
    raw.Send(Sci::SCI_SHOWLINES, static_cast<WPARAM>(next), next);
}

// What changes while no undo is collected moves the text away from below the steps that were, and
// the stock engine would stop half-way in one of them, for ever read-only. Text that is put in
// behind all other, as a load does, harms none.
void Engine::NoteUncollected(const TextEdit& edit)
{
    if (!CollectsUndo() && !(edit.inserts && edit.position == raw.Length()) &&
        (raw.Send(Sci::SCI_CANUNDO) || raw.Send(Sci::SCI_CANREDO)))
        documents::HasStaleHistory(m_document) = true;
}

// One of the windows that show the document does, for each of them may tell of an edit.
bool Engine::MarksChanges()
{
    if (!looks.IsOn() || !CollectsUndo())
        return false;
    const std::vector<Engine*>& windows = documents::Windows(m_document);
    const auto first = std::find_if(windows.begin(), windows.end(),
                                    [](const Engine* shown) { return shown->looks.IsOn(); });
    return first != windows.end() && *first == this;
}

void Engine::EditBegins(const TextEdit& edit)
{
    if (undo)
        undo->Tell();
    if (EraseRun::AnyIsOpen())
        documents::EraseRunOf(m_document).EditBegins(raw, edit);
    documents::CaretStepsOf(m_document).EditBegins(*this, edit);
    NoteUncollected(edit);
    KeepFirstLineVisible(edit);
    target.Follow(edit);
    searcher.TextChanges([&edit](long place) { return edit.Moved(place); });
    errors->NoteChange(*this, edit.inserts, edit.position, edit.bytes);
    looks.EditBegins(edit);
    if (MarksChanges())
        bars->EditBegins(raw, edit);
    else if (!CollectsUndo() || !looks.IsOn())
        bars->Forget();
    if (map)
        map->EditBegins(edit);
}

// One caret, behind what a line begins with: Backspace may take more of that.
void Engine::EraseKeyBegins(bool back)
{
    const auto ask = [this](unsigned message, long value = 0) {
        return static_cast<long>(raw.Send(message, static_cast<std::uintptr_t>(value)));
    };
    const long caret = ask(Sci::SCI_GETCURRENTPOS);
    const long from = back ? ask(Sci::SCI_POSITIONBEFORE, caret) : caret;
    const long to = back ? caret : ask(Sci::SCI_POSITIONAFTER, caret);
    const bool isPlain = ask(Sci::SCI_GETANCHOR) == caret && ask(Sci::SCI_GETSELECTIONS) == 1 &&
                         !ask(Sci::SCI_SELECTIONISRECTANGLE) && !ask(Sci::SCI_GETREADONLY) &&
                         !documents::HasUndoActions(m_document);
    const long line = ask(Sci::SCI_LINEFROMPOSITION, caret);
    const bool mayUnindent = back && ask(Sci::SCI_GETBACKSPACEUNINDENTS) &&
                             caret <= ask(Sci::SCI_GETLINEINDENTPOSITION, line);
    if (isPlain && from == to) // at an end of the text, where nothing is taken and no run ends
        return;
    if (isPlain && !mayUnindent)
        documents::EraseRunOf(m_document).KeyBegins(raw, from, to);
    else
        EndEraseRun();
}

void Engine::EraseKeyEnds()
{
    documents::EraseRunOf(m_document).KeyEnds();
}

void Engine::EndEraseRun()
{
    documents::EraseRunOf(m_document).Close(raw);
}

// The stock engine makes one step of all that is typed without a move of the caret, over any number
// of lines. An action without an edit ends it, and leaves no step of its own.
void Engine::EndTypedStep()
{
    if (!looks.IsOn() || raw.Send(Sci::SCI_GETREADONLY) || !CollectsUndo() ||
        documents::HasUndoActions(m_document))
        return;
    raw.Send(Sci::SCI_BEGINUNDOACTION);
    raw.Send(Sci::SCI_ENDUNDOACTION);
}

void Engine::AimAtCaret()
{
    if (std::exchange(m_hasJumped, false) && looks.IsOn())
        raw.Send(Sci::SCI_CHOOSECARETX);
}

void Engine::EndRuns()
{
    EndEraseRun();
    documents::CaretStepsOf(m_document).Close(raw);
}

void Engine::Settle()
{
    if (CaretSteps::AnyIsNoted() && ChangeReporter::IsOver())
        documents::CaretStepsOf(m_document).Settle(*this);
}

long Engine::Bytes(LPARAM position) const
{
    return position < 0 ? -1 : text.ToBytes({position}).value;
}

long Engine::Units(long position) const
{
    return position < 0 ? position : text.ToUnits({position}).value;
}

long Engine::CaretPosition() const
{
    return Units(static_cast<long>(raw.Send(Sci::SCI_GETCURRENTPOS)));
}

void Engine::ReplaceTarget(std::string_view bytes)
{
    LendTarget();
    raw.Send(Sci::SCI_REPLACETARGET, bytes.size(), bytes.data());
    TakeTarget();
}

void Engine::SelectQuietly(long anchor, long caret)
{
    raw.Send(Sci::SCI_SETSELECTION, static_cast<WPARAM>(caret), anchor);
    m_owesSelection = true;
}

void Engine::TellSelection()
{
    if (std::exchange(m_owesSelection, false))
        raw.Send(Sci::SCI_SETANCHOR, static_cast<WPARAM>(raw.Send(Sci::SCI_GETANCHOR)));
}

// Another change may have put half of a character on either side.
void Engine::LendTarget() const
{
    const auto whole = [this](long position) {
        return CharacterStart(raw, std::clamp(position, 0L, raw.Length()));
    };
    raw.Send(Sci::SCI_SETTARGETRANGE, static_cast<WPARAM>(whole(target.start)), whole(target.end));
}

void Engine::TakeTarget()
{
    target.start = static_cast<long>(raw.Send(Sci::SCI_GETTARGETSTART));
    target.end = static_cast<long>(raw.Send(Sci::SCI_GETTARGETEND));
}

LRESULT Engine::Translate(const MessageRow& row, WPARAM wParam, LPARAM lParam)
{
    Utf8Text wText;
    Utf8Text lText;
    const auto inward = [this](Kind kind, LPARAM value, Utf8Text& scratch) -> LPARAM {
        switch (kind) {
        case Kind::Pos:
            return Bytes(value);
        case Kind::Line:
            return ClampedLine(raw, static_cast<int>(value));
        case Kind::TextIn:
            scratch.Assign(TerminatedText(reinterpret_cast<const char16_t*>(value)));
            return reinterpret_cast<LPARAM>(scratch.Data());
        default:
            return value;
        }
    };
    const LPARAM w = inward(row.wParam, static_cast<LPARAM>(wParam), wText);
    const LPARAM l = inward(row.lParam, lParam, lText);
    const LRESULT result = raw.Send(row.number, static_cast<WPARAM>(w), l);
    return row.result == Kind::Pos ? Units(static_cast<long>(result)) : result;
}

} // namespace engine
