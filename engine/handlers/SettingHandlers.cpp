// SPDX-License-Identifier: GPL-3.0-or-later
// Messages that set and ask what this engine holds in its own way: line ends, lexers, the mask of
// notifications.
#include "engine/core/Documents.h"
#include "engine/core/Engine.h"
#include "engine/core/Handlers.h"

#include <QWidget>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

// This engine's line-end modes by the stock engine's: CR LF, CR, LF.
constexpr int kEolModes[] = {1, 2, 3};

// -1 for what is no mode.
int StockEolMode(WPARAM mode)
{
    return mode >= 1 && mode <= 3 ? static_cast<int>(mode) - 1 : -1;
}

LRESULT GetEolMode(Engine& engine, WPARAM, LPARAM)
{
    if (engine.noSingleEol)
        return 0;
    return kEolModes[engine.raw.Send(Sci::SCI_GETEOLMODE)];
}

// Mode 0, no single mode, leaves what Enter inserts as it was. Other numbers change nothing.
LRESULT SetEolMode(Engine& engine, WPARAM wParam, LPARAM)
{
    const int stock = StockEolMode(wParam);
    if (stock >= 0)
        engine.raw.Send(Sci::SCI_SETEOLMODE, static_cast<WPARAM>(stock));
    if (stock >= 0 || wParam == 0)
        engine.noSingleEol = stock < 0;
    return 0;
}

// Asked before each of the changes of an undo is told, so that the answer is kept. A document may
// stand in several windows, so that one counter serves for all.
unsigned readOnlyVersion = 1;

LRESULT SetReadOnly(Engine& engine, WPARAM wParam, LPARAM)
{
    ++readOnlyVersion;
    return engine.raw.Send(Sci::SCI_SETREADONLY, wParam);
}

LRESULT GetReadOnly(Engine& engine, WPARAM, LPARAM)
{
    if (engine.readOnly.version != readOnlyVersion)
        engine.readOnly = {readOnlyVersion, engine.raw.Send(Sci::SCI_GETREADONLY) != 0};
    return engine.readOnly.value;
}

// The conversion steps back over what it has put in, and so never ends where nothing can be.
LRESULT ConvertEols(Engine& engine, WPARAM wParam, LPARAM)
{
    const int stock = StockEolMode(wParam);
    if (stock >= 0 && !engine.raw.Send(Sci::SCI_GETREADONLY))
        engine.raw.Send(Sci::SCI_CONVERTEOLS, static_cast<WPARAM>(stock));
    return 0;
}

// The text is UTF-16 to everybody outside, whatever is set: 65001 is the stock engine's word for
// Unicode.
LRESULT GetCodePage(Engine&, WPARAM, LPARAM)
{
    return Sci::SC_CP_UTF8;
}

LRESULT Ignore(Engine&, WPARAM, LPARAM)
{
    return 0;
}

LRESULT GetModEventMask(Engine& engine, WPARAM, LPARAM)
{
    return engine.reporter.ModEventMask();
}

LRESULT SetModEventMask(Engine& engine, WPARAM wParam, LPARAM)
{
    engine.reporter.SetModEventMask(static_cast<int>(wParam));
    return 0;
}

// lParam: a line-end mode for what goes to the clipboard; any other value leaves it as it stands.
LRESULT Copy(Engine& engine, WPARAM, LPARAM lParam)
{
    engine.copyEol = StockEolMode(static_cast<WPARAM>(lParam)) >= 0 ? static_cast<int>(lParam) : -1;
    engine.raw.Send(Sci::SCI_COPY);
    engine.copyEol = -1;
    return 0;
}

LRESULT SetLexer(Engine& engine, WPARAM wParam, LPARAM)
{
    engine.colouring->SetLexer(engine.raw, static_cast<int>(wParam));
    engine.analysis.RulesChanged();
    return 0;
}

LRESULT GetLexer(Engine& engine, WPARAM, LPARAM)
{
    return engine.colouring->Lexer();
}

LRESULT SetLexerLanguage(Engine& engine, WPARAM, LPARAM lParam)
{
    const Utf8Text name(TerminatedText(reinterpret_cast<const char16_t*>(lParam)));
    engine.raw.Send(Sci::SCI_SETLEXERLANGUAGE, 0, name.Data());
    engine.colouring->TakeStockLexer(engine.raw);
    engine.analysis.RulesChanged();
    return 0;
}

// The stock engine has no words for SQL, which it takes for the container's.
LRESULT SetKeyWords(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    constexpr WPARAM kSets = 9; // those of a lexer are found by number, whichever it is
    if (wParam >= kSets)
        return 0;
    const Utf8Text words(TerminatedText(reinterpret_cast<const char16_t*>(lParam)));
    if (engine.colouring->IsSql())
        engine.colouring->SetKeyWords(engine.raw, static_cast<int>(wParam), words.View());
    else
        engine.raw.Send(Sci::SCI_SETKEYWORDS, wParam, words.Data());
    return 0;
}

// The stock engine's lexers are made to begin where a line does, and to see the whole of it.
void ColorizeLines(const Engine& engine, long start, long end)
{
    const auto lineOf = [&engine](long position) {
        return static_cast<long>(
            engine.raw.Send(Sci::SCI_LINEFROMPOSITION, static_cast<WPARAM>(position)));
    };
    const long from = engine.text.StartInBytes(lineOf(start)).value;
    const long to = end < 0 ? end : engine.text.StartInBytes(lineOf(end) + 1).value;
    engine.raw.Send(Sci::SCI_COLOURISE, static_cast<WPARAM>(from), to);
}

LRESULT Colorize(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const long start = engine.Bytes(static_cast<LPARAM>(wParam));
    const long end = engine.Bytes(lParam);
    if (end >= 0 && end < start)
        return 0;
    const std::shared_ptr<Colouring> colouring = engine.colouring;
    if (colouring->IsSql())
        colouring->Colorize(engine.raw, start, end);
    else
        ColorizeLines(engine, std::max(start, 0L), end);
    return 0;
}

// All of the text, when it is next seen; folds that depend on styles come with them.
LRESULT Restyle(Engine& engine, WPARAM, LPARAM)
{
    const std::shared_ptr<Colouring> colouring = engine.colouring;
    colouring->Restart(engine.raw);
    if (!colouring->IsSql())
        engine.raw.Send(Sci::SCI_STARTSTYLING, 0);
    for (const Engine* shown : documents::Windows(engine.Document()))
        shown->window.viewport()->update();
    return 0;
}

// The stock engine takes a status that a host has set for a failure of its own.
LRESULT SetStatus(Engine& engine, WPARAM wParam, LPARAM)
{
    engine.raw.Send(Sci::SCI_SETSTATUS, 0);
    engine.status = static_cast<int>(wParam);
    return 0;
}

LRESULT GetStatus(Engine& engine, WPARAM, LPARAM)
{
    const LRESULT failure = engine.raw.Send(Sci::SCI_GETSTATUS);
    return failure != 0 ? failure : engine.status;
}

// Styles of the host's own: what stands behind them is the host's too.
LRESULT StartStyling(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    engine.colouring->DropTail();
    const long start = std::max(engine.Bytes(static_cast<LPARAM>(wParam)), 0L);
    return engine.raw.Send(Sci::SCI_STARTSTYLING, static_cast<WPARAM>(start), lParam);
}

LRESULT ClearDocumentStyle(Engine& engine, WPARAM, LPARAM)
{
    engine.colouring->DropTail();
    return engine.raw.Send(Sci::SCI_CLEARDOCUMENTSTYLE);
}

LRESULT SetProperty(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const Utf8Text key(TerminatedText(reinterpret_cast<const char16_t*>(wParam)));
    const Utf8Text value(TerminatedText(reinterpret_cast<const char16_t*>(lParam)));
    engine.properties.emplace(key.View());
    const LRESULT result =
        engine.raw.Send(Sci::SCI_SETPROPERTY, reinterpret_cast<WPARAM>(key.Data()), value.Data());
    engine.colouring->ReadProperties(engine.raw);
    engine.analysis.RulesChanged();
    return result;
}

LRESULT ResetProperties(Engine& engine, WPARAM, LPARAM)
{
    for (const std::string& key : engine.properties)
        engine.raw.Send(Sci::SCI_SETPROPERTY, reinterpret_cast<WPARAM>(key.c_str()), "");
    engine.properties.clear();
    engine.colouring->ReadProperties(engine.raw);
    engine.analysis.RulesChanged();
    return 0;
}

LRESULT GetPropertyInt(Engine& engine, WPARAM wParam, LPARAM)
{
    const Utf8Text key(TerminatedText(reinterpret_cast<const char16_t*>(wParam)));
    return engine.raw.Send(Sci::SCI_GETPROPERTYINT, reinterpret_cast<WPARAM>(key.Data()));
}

// The stock engine's own menu stays off: its entries do nothing under Qt 6.
LRESULT UsePopUp(Engine& engine, WPARAM wParam, LPARAM)
{
    engine.usePopUp = wParam != 0;
    return 0;
}

// Further carets and selections look as the main one does.
template <UINT Number, UINT OfOthers>
LRESULT SetSelectionColour(Engine& engine, WPARAM use, LPARAM colour)
{
    if (use)
        engine.raw.Send(OfOthers, static_cast<WPARAM>(colour));
    return engine.raw.Send(Number, use, colour);
}

LRESULT SetCaretFore(Engine& engine, WPARAM colour, LPARAM lParam)
{
    engine.raw.Send(Sci::SCI_SETADDITIONALCARETFORE, colour);
    return engine.raw.Send(Sci::SCI_SETCARETFORE, colour, lParam);
}

// Whether the window is the list that completion shows, or stands in it.
LRESULT IsAutoCHwnd(Engine& engine, WPARAM wParam, LPARAM)
{
    const auto* asked = reinterpret_cast<const QWidget*>(wParam);
    if (!asked || !engine.raw.Send(Sci::SCI_AUTOCACTIVE))
        return 0;
    for (const QWidget* list : engine.window.findChildren<QWidget*>()) {
        if (list->isWindow() && list->inherits("QListView") &&
            (list == asked || list->isAncestorOf(asked)))
            return 1;
    }
    return 0;
}

// The stock engine leaves the focus to the widget around it, which does nothing.
LRESULT GrabFocus(Engine& engine, WPARAM, LPARAM)
{
    engine.window.setFocus(Qt::OtherFocusReason);
    return 0;
}

constexpr HandlerRow kRows[] = {
    {message::SetReadOnly, SetReadOnly},
    {message::GetReadOnly, GetReadOnly},
    {message::GetEOLMode, GetEolMode},
    {message::SetEOLMode, SetEolMode},
    {message::ConvertEOLs, ConvertEols},
    {message::GetCodePage, GetCodePage},
    {message::SetCodePage, Ignore},
    {message::GetModEventMask, GetModEventMask},
    {message::SetModEventMask, SetModEventMask},
    {message::Copy, Copy},
    {message::SetLexer, SetLexer},
    {message::GetLexer, GetLexer},
    {message::SetLexerLanguage, SetLexerLanguage},
    {message::SetProperty, SetProperty},
    {message::GetPropertyInt, GetPropertyInt},
    {message::ResetProperties, ResetProperties},
    {message::SetKeyWords, SetKeyWords},
    {message::Colorize, Colorize},
    {message::StartStyling, StartStyling},
    {message::ClearDocumentStyle, ClearDocumentStyle},
    {message::SetStatus, SetStatus},
    {message::GetStatus, GetStatus},
    {kRestyle, Restyle},
    {message::SetSelFore, SetSelectionColour<Sci::SCI_SETSELFORE, Sci::SCI_SETADDITIONALSELFORE>},
    {message::SetSelBack, SetSelectionColour<Sci::SCI_SETSELBACK, Sci::SCI_SETADDITIONALSELBACK>},
    {message::SetCaretFore, SetCaretFore},
    {message::UsePopUp, UsePopUp},
    {message::IsAutoCHwnd, IsAutoCHwnd},
    {message::GrabFocus, GrabFocus},
};

} // namespace

std::span<const HandlerRow> SettingHandlers()
{
    return kRows;
}

} // namespace engine
