// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/Documents.h"

#include "engine/colours/Colouring.h"
#include "engine/core/CaretSteps.h"
#include "engine/core/EraseRun.h"
#include "engine/core/ErrorList.h"
#include "engine/looks/ChangeBars.h"

#include <algorithm>
#include <unordered_map>

namespace engine::documents {
namespace {

struct Record
{
    std::vector<Engine*> windows;
    int references = 0;
    int undoActions = 0;
    bool hasStaleHistory = false;
    std::shared_ptr<Colouring> colouring = std::make_shared<Colouring>();
    ErrorList errors;
    EraseRun eraseRun;
    CaretSteps caretSteps;
    ChangeBars changeBars;
};

std::unordered_map<Document, Record>& All()
{
    static std::unordered_map<Document, Record> records;
    return records;
}

Record* Find(Document document)
{
    const auto found = All().find(document);
    return found != All().end() ? &found->second : nullptr;
}

// The stock engine frees a document with its last holder, and may give the address out again.
void ForgetIfFree(Document document)
{
    const Record* record = Find(document);
    if (record && record->windows.empty() && record->references == 0)
        All().erase(document);
}

bool TakeOne(int Record::*count, Document document)
{
    Record* record = Find(document);
    if (!record || record->*count == 0)
        return false;
    --(record->*count);
    ForgetIfFree(document);
    return true;
}

} // namespace

bool IsKnown(Document document)
{
    return Find(document) != nullptr;
}

std::shared_ptr<Colouring> ColouringOf(Document document)
{
    return All()[document].colouring;
}

void Shown(Document document, Engine& window)
{
    All()[document].windows.push_back(&window);
}

void Left(Document document, Engine& window)
{
    Record* record = Find(document);
    if (!record)
        return;
    const auto found = std::find(record->windows.begin(), record->windows.end(), &window);
    if (found != record->windows.end())
        record->windows.erase(found);
    ForgetIfFree(document);
}

const std::vector<Engine*>& Windows(Document document)
{
    return All()[document].windows;
}

ErrorList& Errors(Document document)
{
    return All()[document].errors;
}

void Created(Document document)
{
    ++All()[document].references;
}

EraseRun& EraseRunOf(Document document)
{
    return All()[document].eraseRun;
}

CaretSteps& CaretStepsOf(Document document)
{
    return All()[document].caretSteps;
}

ChangeBars& ChangeBarsOf(Document document)
{
    return All()[document].changeBars;
}

bool AddReference(Document document)
{
    Record* record = Find(document);
    if (record)
        ++record->references;
    return record != nullptr;
}

bool Release(Document document)
{
    return TakeOne(&Record::references, document);
}

void BeginUndoAction(Document document)
{
    ++All()[document].undoActions;
}

bool EndUndoAction(Document document)
{
    return TakeOne(&Record::undoActions, document);
}

bool HasUndoActions(Document document)
{
    const Record* record = Find(document);
    return record && record->undoActions > 0;
}

void DropUndoActions(Document document)
{
    All()[document].undoActions = 0;
}

bool& HasStaleHistory(Document document)
{
    return All()[document].hasStaleHistory;
}

} // namespace engine::documents
