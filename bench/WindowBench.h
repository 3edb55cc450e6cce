// SPDX-License-Identifier: GPL-3.0-or-later
// What a person's window on a display takes, in processes of their own: a process has one display.
#pragma once

#include <functional>
#include <string>

class QString;

namespace bench {

// Runs the work with the name of a display that is there as long as it runs. False if there is
// none.
bool WithDisplay(const std::function<void(const QString& display)>& work);

// What a child prints that is run with the words on the display.
std::string AskChild(const QString& platform, const QString& display, const char* word,
                     const std::string& path);

// Of the keys of a person, in milliseconds: from the moment a key is due until it is painted.
void PrintKeyTimes(const char* path);

// The child's side: does the work and prints its seconds. True if the arguments were a child's.
bool RunInWindow(int argc, char** argv);

} // namespace bench
