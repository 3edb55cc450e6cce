// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/help/TextKeys.h"

#include <QCoreApplication>

namespace {

struct Row
{
    QKeyCombination key;
    const char* use;
};

constexpr Row kRows[] = {
    {Qt::CTRL | Qt::Key_Left, QT_TRANSLATE_NOOP("TextKeys", "Word Left")},
    {Qt::CTRL | Qt::Key_Right, QT_TRANSLATE_NOOP("TextKeys", "Word Right")},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_Left, QT_TRANSLATE_NOOP("TextKeys", "Select Word Left")},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_Right, QT_TRANSLATE_NOOP("TextKeys", "Select Word Right")},
    {Qt::CTRL | Qt::Key_Home, QT_TRANSLATE_NOOP("TextKeys", "Start of the Text")},
    {Qt::CTRL | Qt::Key_End, QT_TRANSLATE_NOOP("TextKeys", "End of the Text")},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_Home,
     QT_TRANSLATE_NOOP("TextKeys", "Select to the Start of the Text")},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_End,
     QT_TRANSLATE_NOOP("TextKeys", "Select to the End of the Text")},
    {Qt::CTRL | Qt::Key_Up, QT_TRANSLATE_NOOP("TextKeys", "Scroll Up")},
    {Qt::CTRL | Qt::Key_Down, QT_TRANSLATE_NOOP("TextKeys", "Scroll Down")},
    {Qt::CTRL | Qt::Key_Backspace, QT_TRANSLATE_NOOP("TextKeys", "Delete Word Left")},
    {Qt::CTRL | Qt::Key_Delete, QT_TRANSLATE_NOOP("TextKeys", "Delete Word Right")},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_Backspace,
     QT_TRANSLATE_NOOP("TextKeys", "Delete to the Start of the Line")},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_Delete,
     QT_TRANSLATE_NOOP("TextKeys", "Delete to the End of the Line")},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_L, QT_TRANSLATE_NOOP("TextKeys", "Delete Line")},
    {Qt::CTRL | Qt::Key_T, QT_TRANSLATE_NOOP("TextKeys", "Swap with the Line Above")},
    {Qt::CTRL | Qt::Key_BracketLeft, QT_TRANSLATE_NOOP("TextKeys", "Paragraph Up")},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_BracketLeft,
     QT_TRANSLATE_NOOP("TextKeys", "Select Paragraph Up")},
    {Qt::ALT | Qt::Key_Home, QT_TRANSLATE_NOOP("TextKeys", "Start of the Row")},
    {Qt::ALT | Qt::Key_End, QT_TRANSLATE_NOOP("TextKeys", "End of the Row")},
    {Qt::ALT | Qt::SHIFT | Qt::Key_Left, QT_TRANSLATE_NOOP("TextKeys", "Select Columns")},
    {Qt::ALT | Qt::SHIFT | Qt::Key_Right, QT_TRANSLATE_NOOP("TextKeys", "Select Columns")},
    {Qt::ALT | Qt::SHIFT | Qt::Key_Up, QT_TRANSLATE_NOOP("TextKeys", "Select Columns")},
    {Qt::ALT | Qt::SHIFT | Qt::Key_Down, QT_TRANSLATE_NOOP("TextKeys", "Select Columns")},
    {Qt::ALT | Qt::SHIFT | Qt::Key_Home, QT_TRANSLATE_NOOP("TextKeys", "Select Columns")},
    {Qt::ALT | Qt::SHIFT | Qt::Key_End, QT_TRANSLATE_NOOP("TextKeys", "Select Columns")},
    {Qt::ALT | Qt::SHIFT | Qt::Key_PageUp, QT_TRANSLATE_NOOP("TextKeys", "Select Columns")},
    {Qt::ALT | Qt::SHIFT | Qt::Key_PageDown, QT_TRANSLATE_NOOP("TextKeys", "Select Columns")},
};

} // namespace

QString UseInText(const QKeySequence& key)
{
    for (const Row& row : kRows) {
        if (key == QKeySequence(row.key))
            return QCoreApplication::translate("TextKeys", row.use);
    }
    return {};
}
