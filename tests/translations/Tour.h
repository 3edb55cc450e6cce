// SPDX-License-Identifier: GPL-3.0-or-later
// Everything that the workbench can show in a language: its window, its menus and its dialogs, one
// after another.
#pragma once

#include "tests/host/WorkbenchTest.h"

#include <QAction>
#include <QMenu>
#include <QWidget>

#include <functional>

// While it stands, what is made is in the language.
class Spoken
{
public:
    explicit Spoken(const QString& language);
    ~Spoken();
};

class Tour : private Spoken, public WorkbenchTest
{
protected:
    explicit Tour(const QString& language);

    using LookAtMenu = std::function<void(QMenu& menu)>;
    using LookAtWindow = std::function<void(QWidget& window)>;

    // Each menu as it opens, those inside of others too; the bar of the window comes as a menu.
    void ForEachMenu(const LookAtMenu& look);
    // Each window and dialog as it stands; of the preferences, every page in turn.
    void ForEachWindow(const LookAtWindow& look);

private:
    void OwnDialogs(const LookAtWindow& look);
    void Questions(const LookAtWindow& look);
    void Preferences(const LookAtWindow& look);
    // Looks at the modal dialog that the operation opens, and closes it.
    void Modal(const std::function<void()>& open, const LookAtWindow& look);
};
