// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/EraseRun.h"

#include "control/EngineMessages.h"

#include <algorithm>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr long kNear = 4096; // bytes before and behind the caret
constexpr unsigned char kLeadOfThree = 0xE0;

struct Range
{
    unsigned first;
    unsigned last;
};

// Moves end none: the stock engine joins what is taken at one place whatever is between.
constexpr Range kCommands[] = {
    {message::DeleteBack, message::FormFeed},
    {message::DelWordLeft, message::UpperCase},
    {message::DeleteBackNotLine, message::DeleteBackNotLine},
    {message::DelLineLeft, message::DelLineRight},
    {message::LineDuplicate, message::LineDuplicate},
};

constexpr unsigned kOthers[] = {
    message::BeginUndoAction,
    message::EndUndoAction,
    message::Undo,
    message::Redo,
    message::EmptyUndoBuffer,
    message::SetUndoCollection,
    message::SetSavePoint,
    message::SetDocPointer,
    message::SetText,
    message::ClearAll,
    message::ReplaceSel,
    message::ReplaceTargetNoProcess,
    message::ReplaceTargetRE,
    message::Cut,
    message::Paste,
    message::Clear,
    message::LinesJoin,
    message::LinesSplit,
    message::ConvertEOLs,
    message::AutoCComplete,
    message::SetDoingReplaceAll,
};

// Such as the stock engine takes a step for each of.
bool HasLongCharacters(const Raw& raw, long place)
{
    const std::string_view near =
        raw.Bytes(std::max(place - kNear, 0L), std::min(place + kNear, raw.Length()));
    return std::any_of(near.begin(), near.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) >= kLeadOfThree; });
}

} // namespace

EraseRun::~EraseRun()
{
    s_open -= m_isOpen;
}

bool EraseRun::IsEndedBy(unsigned message)
{
    return std::find(std::begin(kOthers), std::end(kOthers), message) != std::end(kOthers) ||
           std::any_of(std::begin(kCommands), std::end(kCommands), [message](const Range& range) {
               return message >= range.first && message <= range.last;
           });
}

void EraseRun::KeyBegins(const Raw& raw, long from, long to)
{
    if (m_isOpen && from != m_place && to != m_place)
        Close(raw);
    if (!m_isOpen) {
        if (!HasLongCharacters(raw, from))
            return;
        raw.Send(Sci::SCI_BEGINUNDOACTION);
        m_isOpen = true;
        ++s_open;
    }
    m_place = from;
    m_takes = {from, to};
}

void EraseRun::EditBegins(const Raw& raw, const TextEdit& edit)
{
    const bool isOfKey =
        !edit.inserts && edit.position == m_takes.from && edit.position + edit.bytes == m_takes.to;
    if (!isOfKey)
        Close(raw);
}

void EraseRun::Close(const Raw& raw)
{
    if (!m_isOpen)
        return;
    m_isOpen = false;
    --s_open;
    raw.Send(Sci::SCI_ENDUNDOACTION);
}

} // namespace engine
