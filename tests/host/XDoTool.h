// SPDX-License-Identifier: GPL-3.0-or-later
// The display's toolbox: windows by name, keys and clicks, as a person would use them.
#pragma once

#include <QElapsedTimer>
#include <QProcess>
#include <QStringList>

#include <functional>

inline constexpr int kPatienceInMs = 20000;

// One call of the toolbox; what it printed, without the last line end.
inline QString XDoTool(const QStringList& words)
{
    QProcess tool;
    tool.start(QStringLiteral("xdotool"), words);
    tool.waitForFinished();
    return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
}

inline bool Eventually(const std::function<bool()>& condition)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < kPatienceInMs) {
        if (condition())
            return true;
    }
    return false;
}
