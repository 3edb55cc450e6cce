// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/language/KeyTable.h"

#include <Qt>

namespace {

constexpr int kNone = 0;
constexpr int kShift = static_cast<int>(Qt::ShiftModifier);
constexpr int kCtrl = static_cast<int>(Qt::ControlModifier);
constexpr int kAlt = static_cast<int>(Qt::AltModifier);

// An editor that stands alone knows some of the commands and a view around it others: a key whose
// command nobody knows does nothing, and is used up.
constexpr Accelerator kKeys[] = {
    {Qt::Key_F2, kNone, 54056},
    {Qt::Key_F2, kShift, 54058},
    {Qt::Key_F2, kCtrl, 54057},
    {Qt::Key_F2, kCtrl | kShift, 54059},
    {Qt::Key_U, kCtrl, 54039},
    {Qt::Key_U, kCtrl | kShift, 54042},
    {Qt::Key_Space, kCtrl | kShift, 53952},
    {Qt::Key_C, kCtrl, 57634},
    {Qt::Key_X, kCtrl, 57635},
    {Qt::Key_Delete, kNone, 53899},
    {Qt::Key_L, kCtrl | kShift, 53907},
    {Qt::Key_Delete, kCtrl | kShift, 53918},
    {Qt::Key_Delete, kCtrl, 53920},
    {Qt::Key_Backspace, kCtrl | kShift, 53917},
    {Qt::Key_Backspace, kCtrl, 53919},
    {Qt::Key_Z, kCtrl, 57643},
    {Qt::Key_Left, kCtrl | kAlt, 54002},
    {Qt::Key_I, kCtrl, 54024},
    {Qt::Key_P, kCtrl | kShift, 53989},
    {Qt::Key_F11, kCtrl | kAlt, 53964},
    {Qt::Key_F12, kCtrl | kAlt, 53963},
    {Qt::Key_F, kCtrl, 57636},
    {Qt::Key_F3, kNone, 54063},
    {Qt::Key_F3, kCtrl, 53903},
    {Qt::Key_F3, kShift, 53902},
    {Qt::Key_F3, kCtrl | kShift, 53904},
    {Qt::Key_G, kCtrl, 54049},
    {Qt::Key_Tab, kNone, 54034},
    {Qt::Key_Tab, kShift, 54035},
    {Qt::Key_B, kCtrl, 53960},
    {Qt::Key_B, kCtrl | kShift, 53961},
    {Qt::Key_V, kCtrl, 57637},
    {Qt::Key_Y, kCtrl, 57644},
    {Qt::Key_H, kCtrl, 57641},
    {Qt::Key_R, kCtrl, 57641},
    {Qt::Key_A, kCtrl, 57642},
    {Qt::Key_F4, kCtrl, 57602},
    {Qt::Key_Right, kCtrl | kAlt, 54001},
    {Qt::Key_I, kCtrl | kShift, 54025},
    {Qt::Key_R, kCtrl | kShift, 53938},
    {Qt::Key_F10, kCtrl | kAlt, 53962},
};

} // namespace

HACCEL EditorKeyTable()
{
    static constexpr AcceleratorTable kTable(kKeys);
    return &kTable;
}
