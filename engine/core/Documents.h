// SPDX-License-Identifier: GPL-3.0-or-later
// The stock engine's texts by pointer: who holds them, and how many undo actions stand open in
// each. The stock engine trusts the pointers and the counts that it is given, and aborts if they
// are wrong; here what is not known, or would go below nothing, is ignored.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

namespace engine {
class CaretSteps;
class ChangeBars;
class Colouring;
class Engine;
class EraseRun;
class ErrorList;
} // namespace engine

namespace engine::documents {

using Document = std::intptr_t;

bool IsKnown(Document document);

// The language of a known document, which goes with it.
std::shared_ptr<Colouring> ColouringOf(Document document);

// A window begins or ceases to show the document.
void Shown(Document document, Engine& window);
void Left(Document document, Engine& window);
// In the order in which they came.
const std::vector<Engine*>& Windows(Document document);

// The problems of a document that a window shows.
ErrorList& Errors(Document document);

// The run of Backspace or Delete over a document that a window shows.
EraseRun& EraseRunOf(Document document);

// The steps that were made with several carets in a document that a window shows.
CaretSteps& CaretStepsOf(Document document);

// The marks of the lines that have changed in a document that a window shows.
ChangeBars& ChangeBarsOf(Document document);

// References of hosts. Release gives false if hosts hold none.
void Created(Document document);
bool AddReference(Document document);
bool Release(Document document);

// Undo actions that hosts have begun and not ended. End gives false if there is none.
void BeginUndoAction(Document document);
bool EndUndoAction(Document document);
bool HasUndoActions(Document document);
void DropUndoActions(Document document);

// Whether steps stand in the history that are about another text.
bool& HasStaleHistory(Document document);

} // namespace engine::documents
