// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/finding/ResultsInbox.h"

#include "host/finding/ResultsPane.h"

namespace {

QString Reason(FileNote note)
{
    switch (note) {
    case FileNote::Binary:
        return ResultsPane::tr("no text");
    case FileNote::Unreadable:
        return ResultsPane::tr("could not be read");
    case FileNote::NotAFile:
        return ResultsPane::tr("a device or a pipe");
    case FileNote::Loop:
        return ResultsPane::tr("a folder that has been searched already");
    default:
        return ResultsPane::tr("the expression went on for too long");
    }
}

} // namespace

void ResultsInbox::OnNote(FileNote note, const QString& path)
{
    const std::lock_guard lock(m_lock);
    m_ranAway = m_ranAway || note == FileNote::RanAway;
    if (note == FileNote::NoExpression)
        m_fault = path;
    else
        m_notes += path + QStringLiteral(": ") + Reason(note);
}
