// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The end of objects and windows that may be given up while their own code is running: closed in
/// one of their notifications, or while a question of theirs stands. They are kept until no call of
/// the framework is in progress and the outermost event loop has control.
#pragma once

#include "common/Export.h"

class CObject;
class QWidget;

/// Stands on the stack for as long as an object of the framework may be in use further down.
class ZN_API FrameworkCall
{
public:
    FrameworkCall() { ++s_inProgress; } ///< nothing is deleted from here on
    /// What waits is deleted soon, if it was the last one.
    ~FrameworkCall()
    {
        if (--s_inProgress == 0 && s_isWaiting)
            Resume();
    }
    FrameworkCall(const FrameworkCall&) = delete;
    FrameworkCall& operator=(const FrameworkCall&) = delete;

private:
    friend class Disposal;
    static void Resume();

    static int s_inProgress;
    static bool s_isWaiting; // something is to be disposed of
};

/// Deletes what was given up, when that is safe.
class ZN_API Disposal
{
public:
    /// Both are deleted later, the object first; either may be null. Saying it twice changes
    /// nothing.
    static void Later(CObject* object, QWidget* window);

    /// For the object's destructor: it is gone already.
    static void Forget(const CObject* object);

    /// Deletes what waits, if that is safe at this moment. The event loop does it by itself.
    static void Run();

private:
    static bool IsSafe();
    static void Wait();
};
