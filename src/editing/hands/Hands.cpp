// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/hands/Hands.h"

#include "control/Recording.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/hands/Operations.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

constexpr int kCtrl = static_cast<int>(Qt::ControlModifier);
constexpr int kShift = static_cast<int>(Qt::ShiftModifier);
constexpr int kAlt = static_cast<int>(Qt::AltModifier);

constexpr int kUnsent = kCtrl | kShift | kAlt | static_cast<int>(Qt::KeypadModifier);

using namespace hands;
using namespace Qt;

constexpr HandRow kRows[] = {
#define ZN_HAND(number, name, menu, text, key, modifiers, needs, operation)                        \
    {number, #name, menu, text, key, modifiers, HandNeeds::needs, operation},
#include "editing/hands/Hands.def"
};

constexpr auto kKeys = [] {
    std::array<Accelerator, std::size(kRows)> keys{};
    for (std::size_t i = 0; i < keys.size(); ++i)
        keys[i] = kRows[i].key ? Accelerator{kRows[i].key, kRows[i].modifiers, kRows[i].number}
                               : Accelerator{static_cast<int>(Key_unknown), kUnsent, 0};
    return keys;
}();

} // namespace

std::span<const HandRow> Hands()
{
    return kRows;
}

QString HandText(const char* english)
{
    return QCoreApplication::translate("Hands", english);
}

const HandRow* FindHand(UINT number)
{
    const auto* row = std::find_if(std::begin(kRows), std::end(kRows),
                                   [number](const HandRow& r) { return r.number == number; });
    return row != std::end(kRows) ? row : nullptr;
}

bool IsPossible(const HandRow& row, CZNCoreEditorControlEx& editor)
{
    if (row.needs == HandNeeds::Nothing)
        return true;
    return !editor.GetReadOnly(1) &&
           (row.needs != HandNeeds::WritableSelection || editor.IsSelection());
}

void RunHand(const HandRow& row, CZNCoreEditorControlEx& editor)
{
    const bool isRecorded = editor.Call(engine::kRecordCommand, row.number, 0, 1) != 0;
    row.run(editor);
    if (isRecorded)
        editor.Call(engine::kRecordCommand, 0, 0, 1);
}

// A row without a key has one that no keyboard sends.
HACCEL HandKeyTable()
{
    static constexpr AcceleratorTable kTable(kKeys);
    return &kTable;
}

// Commands with a handler come from the tables of the class; the rest of these numbers is known
// here.
int CZNCoreEditorControlEx::OnCmdMsg(UINT id, int code, void* extra, CommandHandlerInfo* info)
{
    const HandRow* row = FindHand(id);
    if (!row)
        return CZNCoreEditorControl::OnCmdMsg(id, code, extra, info);
    if (info)
        info->target = this;
    else if (code == CN_UPDATE_COMMAND_UI)
        static_cast<CCmdUI*>(extra)->Enable(IsPossible(*row, *this));
    else if (code == CN_COMMAND && IsPossible(*row, *this))
        RunHand(*row, *this);
    return 1;
}
