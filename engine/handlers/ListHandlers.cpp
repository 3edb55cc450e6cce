// SPDX-License-Identifier: GPL-3.0-or-later
// Messages that show a list at the caret.
#include "control/Completion.h"
#include "engine/core/Engine.h"
#include "engine/core/Handlers.h"

#include <QGuiApplication>

#include <algorithm>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

bool IsOnScreen(const Engine& engine, long position)
{
    const auto coordinate = [&](UINT number) {
        return static_cast<int>(engine.raw.Send(number, 0, LPARAM{position}));
    };
    const QPoint point(coordinate(Sci::SCI_POINTXFROMPOSITION),
                       coordinate(Sci::SCI_POINTYFROMPOSITION));
    return QGuiApplication::screenAt(engine.window.viewport()->mapToGlobal(point)) != nullptr;
}

// The stock engine asks for the size of the screen on which the list is to stand, and does not
// expect that there is none: the caret may be scrolled far out of view, or the window moved away.
bool HasScreenFor(const Engine& engine, long position)
{
    if (IsOnScreen(engine, position))
        return true;
    engine.raw.Send(Sci::SCI_SCROLLCARET);
    return IsOnScreen(engine, position);
}

// Where the stock engine puts the list. What the window tells as its caret is the corner of a
// rectangle, or that of another line than the one of several carets that counts.
long ListCaret(const Engine& engine)
{
    const LRESULT main = engine.raw.Send(Sci::SCI_GETMAINSELECTION);
    return static_cast<long>(
        engine.raw.Send(Sci::SCI_GETSELECTIONNCARET, static_cast<WPARAM>(main)));
}

using Proposals = std::vector<std::shared_ptr<znsqlassist::SQLCompletionProposal>>;

LRESULT AutoCShow(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const auto* config = reinterpret_cast<const AutoCompleteConfig*>(wParam);
    const auto* proposals = reinterpret_cast<const Proposals*>(lParam);
    if (!config || !proposals || proposals->empty())
        return 0;
    const auto separator = static_cast<char>(engine.raw.Send(Sci::SCI_AUTOCGETSEPARATOR));
    const auto typeSeparator = static_cast<char>(engine.raw.Send(Sci::SCI_AUTOCGETTYPESEPARATOR));
    std::string list;
    for (const auto& proposal : *proposals) {
        if (!proposal)
            continue;
        if (!list.empty())
            list += separator;
        list += Utf8Text(proposal->Text()).View();
        if (proposal->Image() >= 0)
            list += typeSeparator + std::to_string(proposal->Image());
    }
    const long caret = ListCaret(engine);
    const long typed = std::max<long>(config->typedLength, 0);
    const long start = engine.Bytes(std::max(0L, engine.Units(caret) - typed));
    if (!HasScreenFor(engine, start))
        return 0;
    engine.raw.Send(Sci::SCI_AUTOCSHOW, static_cast<WPARAM>(caret - start), list.c_str());
    return 0;
}

LRESULT UserListShow(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const Utf8Text list(TerminatedText(reinterpret_cast<const char16_t*>(lParam)));
    const long caret = ListCaret(engine);
    if (HasScreenFor(engine, caret))
        engine.raw.Send(Sci::SCI_USERLISTSHOW, wParam, list.Data());
    return 0;
}

constexpr HandlerRow kRows[] = {
    {message::AutoCShow, AutoCShow},
    {message::UserListShow, UserListShow},
};

} // namespace

std::span<const HandlerRow> ListHandlers()
{
    return kRows;
}

} // namespace engine
