// SPDX-License-Identifier: GPL-3.0-or-later
// Messages about the text as a whole: which one a window shows, and how its changes are grouped.
#include "control/Recording.h"
#include "engine/core/CaretSteps.h"
#include "engine/core/Documents.h"
#include "engine/core/Engine.h"
#include "engine/core/Handlers.h"
#include "platform/services/LongWork.h"

#include <QCoreApplication>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

LRESULT SetDocPointer(Engine& engine, WPARAM, LPARAM lParam)
{
    if (lParam && !documents::IsKnown(lParam))
        return 0;
    ChangeReporter::WhenSettled(&engine.window, [&engine, lParam] {
        if (!lParam || documents::IsKnown(lParam))
            engine.ShowDocument(lParam);
    });
    return 0;
}

LRESULT CreateDocument(Engine& engine, WPARAM, LPARAM)
{
    const LRESULT document = engine.raw.Send(Sci::SCI_CREATEDOCUMENT);
    documents::Created(document);
    return document;
}

LRESULT AddRefDocument(Engine& engine, WPARAM, LPARAM lParam)
{
    if (documents::AddReference(lParam))
        engine.raw.Send(Sci::SCI_ADDREFDOCUMENT, 0, lParam);
    return 0;
}

LRESULT ReleaseDocument(Engine& engine, WPARAM, LPARAM lParam)
{
    if (documents::Release(lParam))
        engine.raw.Send(Sci::SCI_RELEASEDOCUMENT, 0, lParam);
    return 0;
}

LRESULT BeginUndoAction(Engine& engine, WPARAM, LPARAM)
{
    const documents::Document document = engine.Document();
    if (!documents::HasUndoActions(document))
        documents::CaretStepsOf(document).ActionBegins(engine);
    documents::BeginUndoAction(document);
    return engine.raw.Send(Sci::SCI_BEGINUNDOACTION);
}

LRESULT EndUndoAction(Engine& engine, WPARAM, LPARAM)
{
    if (documents::EndUndoAction(engine.Document()))
        engine.raw.Send(Sci::SCI_ENDUNDOACTION);
    if (!documents::HasUndoActions(engine.Document()))
        documents::CaretStepsOf(engine.Document()).ActionEnds();
    return 0;
}

LRESULT LineKey(Engine& engine, WPARAM begins, LPARAM)
{
    CaretSteps& steps = documents::CaretStepsOf(engine.Document());
    if (!begins) {
        steps.KeyEnds();
        return 0;
    }
    engine.EndEraseRun();
    steps.KeyBegins(engine, CaretSteps::Key::BeginsLine);
    return 0;
}

// A text that was modified stays so, by a step that does nothing.
void ForgetHistory(Engine& engine)
{
    const bool isModified = engine.raw.Send(Sci::SCI_GETMODIFY) != 0;
    engine.raw.Send(Sci::SCI_EMPTYUNDOBUFFER);
    engine.bars->Forget();
    if (isModified)
        engine.raw.Send(Sci::SCI_ADDUNDOACTION);
}

// The stock engine forgets here how many actions stand open, so a setting that is no change must
// not come to it: it may do so inside an action of its own.
LRESULT SetUndoCollection(Engine& engine, WPARAM wParam, LPARAM)
{
    const bool collect = wParam != 0;
    if (collect == (engine.raw.Send(Sci::SCI_GETUNDOCOLLECTION) != 0))
        return 0;
    ChangeReporter::WhenSettled(&engine.window, [&engine, collect] {
        documents::DropUndoActions(engine.Document());
        engine.raw.Send(Sci::SCI_SETUNDOCOLLECTION, collect);
        Engine::CollectingMayChange();
        if (collect && std::exchange(documents::HasStaleHistory(engine.Document()), false))
            ForgetHistory(engine);
    });
    return 0;
}

LRESULT EmptyUndoBuffer(Engine& engine, WPARAM, LPARAM)
{
    ChangeReporter::WhenSettled(&engine.window, [&engine] {
        engine.raw.Send(Sci::SCI_EMPTYUNDOBUFFER);
        engine.bars->Forget();
    });
    return 0;
}

LRESULT SetSavePoint(Engine& engine, WPARAM, LPARAM)
{
    engine.bars->SavePointSet();
    return engine.raw.Send(Sci::SCI_SETSAVEPOINT);
}

// The stock engine scrolls as little as it can, and leaves the caret at the left edge of what a
// long line has left. A step that has scrolled shows the lines from their start if the caret is
// there.
void ShowFromTheLeft(Engine& engine)
{
    constexpr int kAside = 20; // pixels
    const auto ask = [&engine](unsigned message, std::uintptr_t value = 0) {
        return static_cast<long>(engine.raw.Send(message, value));
    };
    long left = 0;
    for (std::uintptr_t margin = 0; margin < static_cast<std::uintptr_t>(ask(Sci::SCI_GETMARGINS));
         ++margin)
        left += ask(Sci::SCI_GETMARGINWIDTHN, margin);
    const long place = static_cast<long>(
        engine.raw.Send(Sci::SCI_POINTXFROMPOSITION, 0, ask(Sci::SCI_GETCURRENTPOS)));
    const long room = engine.window.viewport()->width() - kAside;
    if (place + ask(Sci::SCI_GETXOFFSET) < std::max(room, left))
        engine.raw.Send(Sci::SCI_SETXOFFSET, 0);
}

// A step may be of a million changes, and nothing stops the stock engine within it.
template <UINT Number>
LRESULT ChangeBySteps(Engine& engine, WPARAM, LPARAM)
{
    LongWork work(&engine.window, Number == Sci::SCI_UNDO
                                      ? QCoreApplication::translate("EngineWindow", "Undoing")
                                      : QCoreApplication::translate("EngineWindow", "Redoing"));
    const QScopedValueRollback<LongWork*> under(engine.undo, &work);
    const documents::Document document = engine.Document();
    documents::CaretStepsOf(document).StepBegins(engine);
    const std::intptr_t offset = engine.raw.Send(Sci::SCI_GETXOFFSET);
    const LRESULT result = engine.raw.Send(Number);
    engine.CaretJumps();
    if (engine.Document() == document)
        documents::CaretStepsOf(document).StepEnds(engine, Number == Sci::SCI_UNDO);
    if (engine.looks.IsOn() && engine.raw.Send(Sci::SCI_GETXOFFSET) != offset)
        ShowFromTheLeft(engine);
    return result;
}

constexpr HandlerRow kRows[] = {
    {message::SetDocPointer, SetDocPointer},         {message::CreateDocument, CreateDocument},
    {message::AddRefDocument, AddRefDocument},       {message::ReleaseDocument, ReleaseDocument},
    {message::BeginUndoAction, BeginUndoAction},     {message::EndUndoAction, EndUndoAction},
    {message::SetUndoCollection, SetUndoCollection}, {message::EmptyUndoBuffer, EmptyUndoBuffer},
    {message::SetSavePoint, SetSavePoint},           {kLineKey, LineKey},
    {message::Undo, ChangeBySteps<Sci::SCI_UNDO>},   {message::Redo, ChangeBySteps<Sci::SCI_REDO>},
};

} // namespace

std::span<const HandlerRow> DocumentHandlers()
{
    return kRows;
}

} // namespace engine
