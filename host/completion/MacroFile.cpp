// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/completion/MacroFile.h"

#include "editing/operations/Macro.h"

#include <algorithm>
#include <iterator>
#include <memory>

namespace {

constexpr int kReplaceSel = 2170;
constexpr qsizetype kMostLines = 1'000'000;

// What an editor records of keys and commands, by ranges: none of them takes a pointer or a length.
struct Range
{
    int first;
    int last;
};
constexpr Range kCommands[] = {
    {2004, 2004},   // clear all
    {2011, 2011},   // redo
    {2013, 2013},   // select all
    {2176, 2180},   // undo, cut, copy, paste, clear
    {2300, 2349},   // caret movements, deletions, new line, tab, case, zoom
    {2390, 2396},   // by parts of words
    {2404, 2404},   // line duplicate
    {2413, 2416},   // paragraphs
    {2426, 2442},   // rectangles, stuttered pages, word ends
    {2450, 2455},   // home and end with wrapped lines, line copy
    {54200, 54299}, // gestures
};

bool IsCommand(int message)
{
    return std::any_of(std::begin(kCommands), std::end(kCommands), [message](const Range& range) {
        return message >= range.first && message <= range.last;
    });
}

QByteArray LineOf(const MacroHolder& step)
{
    if (step.m_message == kReplaceSel) {
        const QChar unit(step.m_text[0]);
        if (unit.isPrint() && !unit.isSpace() && !unit.isSurrogate())
            return "type " + QString(unit).toUtf8() + '\n';
        return QStringLiteral("type U+%1\n").arg(uint(unit.unicode()), 4, 16, QChar(u'0')).toUtf8();
    }
    return "send " + QByteArray::number(step.m_message) + '\n';
}

bool ReadStep(const QString& line, MacroHolder& step)
{
    if (line.startsWith(QLatin1String("type "))) {
        const QString typed = line.mid(5);
        bool isNumber = true;
        const uint unit = typed.startsWith(QLatin1String("U+")) && typed.size() > 2
                              ? typed.mid(2).toUInt(&isNumber, 16)
                          : typed.size() == 1 ? typed[0].unicode()
                                              : 0;
        step.m_message = kReplaceSel;
        step.m_text[0] = static_cast<char16_t>(unit);
        return isNumber && unit > 0 && unit <= 0xFFFF;
    }
    bool isNumber = false;
    step.m_message = line.startsWith(QLatin1String("send ")) ? line.mid(5).toInt(&isNumber) : 0;
    return isNumber && IsCommand(step.m_message);
}

} // namespace

QByteArray WriteMacro(const MacroHolder* head)
{
    QByteArray bytes = "macro 1\n";
    for (const MacroHolder* step = head; step; step = step->m_next) {
        const bool isTyped = step->m_message == kReplaceSel && step->m_text[0] != 0;
        if (isTyped || IsCommand(step->m_message))
            bytes += LineOf(*step);
    }
    return bytes;
}

ReadMacroResult ReadMacro(const QByteArray& bytes)
{
    const QStringList lines = QString::fromUtf8(bytes).split(u'\n');
    if (lines[0].trimmed() != QLatin1String("macro 1") || lines.size() > kMostLines)
        return {nullptr, 0};
    std::unique_ptr<MacroHolder> head;
    MacroHolder* last = nullptr;
    for (qsizetype i = 1; i < lines.size(); ++i) {
        QString line = lines[i];
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        auto step = std::make_unique<MacroHolder>();
        if (!ReadStep(line, *step))
            return {nullptr, static_cast<int>(i)};
        MacroHolder* made = step.release();
        if (last)
            last->m_next = made;
        else
            head.reset(made);
        last = made;
    }
    return {head.release(), -1};
}
