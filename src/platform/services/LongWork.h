// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What takes long is shown, and can be stopped, by the host.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

#include <QElapsedTimer>
#include <QString>

/// What a host shows while something takes long.
class ZN_API ILongWork
{
public:
    virtual ~ILongWork(); ///< to be taken back by SetLongWork before

    /// How far it has come, in hundredths. False stops it: what is done stays. May run an event
    /// loop for the box that it shows, which is to let nobody at the owner's window.
    virtual bool GoesOn(HWND owner, const QString& what, int hundredths) = 0;
    /// Of work that nothing can stop, and in which no event may be handled: how many steps it has
    /// made.
    virtual void Tells(HWND /*owner*/, const QString& /*what*/, int /*steps*/) {}
    virtual void Ends() = 0;                      ///< of a piece of work that has asked
    virtual int Patience() const { return 1000; } ///< milliseconds before it is asked at all
};

/// Takes effect at once and stays the caller's. Null, as from the start: nothing is shown, and
/// nothing stops.
ZN_API void SetLongWork(ILongWork* host);

/// A piece of work: asks the host from time to time once it has taken a second.
class ZN_API LongWork
{
public:
    LongWork(HWND owner, QString what); ///< the text says what is done, for a person
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;
    ~LongWork(); ///< tells the host that it is over, if it was asked

    /// Once for each step. False from when the host has stopped it.
    bool Step(int hundredths)
    {
        return (++m_steps % kStepsBetween != 0 || Ask(hundredths)) && !m_isStopped;
    }
    /// The same for steps beside which a look at the clock is nothing.
    bool LongStep(int hundredths) { return Ask(hundredths) && !m_isStopped; }
    bool IsStopped() const { return m_isStopped; } ///< by the host
    /// Once for each step of work that nothing can stop.
    void Tell()
    {
        if (++m_steps % kStepsBetween == 0)
            TellHost();
    }

private:
    static constexpr int kStepsBetween = 1024; // a look at the clock costs more than a step

    bool Ask(int hundredths);
    void TellHost();

    HWND m_owner;
    QString m_what;
    QElapsedTimer m_begun;
    ILongWork* m_asked = nullptr;
    int m_steps = 0;
    bool m_isStopped = false;
};
