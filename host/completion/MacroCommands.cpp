// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/completion/MacroCommands.h"

#include "editing/operations/Macro.h"
#include "host/completion/MacroFile.h"
#include "host/files/Prompts.h"
#include "platform/windows/Questions.h"

#include <QAction>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QMainWindow>
#include <QSaveFile>
#include <QStatusBar>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MacroCommands)
};

constexpr qint64 kLongest = 64 << 20; // bytes
constexpr int kMessageTime = 10000;   // milliseconds
constexpr QLatin1String kEnding(".znmacro");

QString Filter()
{
    return Texts::tr("Macros (*.znmacro)");
}

// With the key that plays it, if a menu has one.
void TellLoaded(QWidget& window, const QString& name)
{
    auto* main = qobject_cast<QMainWindow*>(window.window());
    if (!main)
        return;
    const auto* play = main->findChild<QAction*>(QStringLiteral("playMacro"));
    const QString key = play ? play->shortcut().toString(QKeySequence::NativeText) : QString();
    main->statusBar()->showMessage(key.isEmpty()
                                       ? Texts::tr("Macro loaded: %1").arg(name)
                                       : Texts::tr("Macro loaded: %1. %2 plays it.").arg(name, key),
                                   kMessageTime);
}

} // namespace

bool CanSaveMacro()
{
    return GetMacroHead() && !IsMacroRecording();
}

void SaveMacro(QWidget* window)
{
    if (!CanSaveMacro())
        return;
    const QString path = WithEnding(
        window, AskSaveFile(window, QStringLiteral("macro") + kEnding, Filter()), kEnding);
    if (path.isEmpty())
        return;
    const QByteArray bytes = WriteMacro(GetMacroHead());
    QSaveFile file(path);
    // A commit forgets what went wrong when it wrote the last bytes.
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
        !file.commit())
        GetPrompts().Tell(
            window, Texts::tr("The macro was not saved to %1. %2").arg(path, file.errorString()));
}

void LoadMacro(QWidget* window)
{
    if (IsMacroRecording())
        return;
    const QString path = AskOpenFile(window, Filter());
    if (path.isEmpty())
        return;
    QFile file(path);
    const QFileInfo info(path);
    const bool isOther = info.exists() && !info.isFile(); // a pipe may never end
    if (isOther || !file.open(QIODevice::ReadOnly) || file.size() > kLongest) {
        GetPrompts().Tell(window, Texts::tr("%1 cannot be read. %2").arg(path, file.errorString()));
        return;
    }
    const ReadMacroResult read = ReadMacro(file.readAll());
    if (read.badLine >= 0) {
        GetPrompts().Tell(window,
                          read.badLine == 0
                              ? Texts::tr("%1 is not a macro.").arg(path)
                              : Texts::tr("%1 is not a macro that can be played: line %2 is no "
                                          "command that is recorded.")
                                    .arg(path, QString::number(read.badLine + 1)));
        return;
    }
    FreeMacro();
    SetMacroHead(read.head);
    TellLoaded(*window, info.fileName());
}
