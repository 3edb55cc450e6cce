// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/Disposal.h"

#include "platform/base/Object.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QPointer>
#include <QThread>
#include <QWidget>

#include <algorithm>
#include <vector>

int FrameworkCall::s_inProgress = 0;
bool FrameworkCall::s_isWaiting = false;

namespace {

struct Waiting
{
    CObject* object;
    QPointer<QWidget> window; // a parent may delete it first
};

std::vector<Waiting>& Queue()
{
    static auto* queue = new std::vector<Waiting>; // outlives every object
    return *queue;
}

class Runner final : public QObject
{
public:
    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        Disposal::Run();
        return true;
    }

    void Post() { QCoreApplication::postEvent(this, new QEvent(QEvent::User)); }

    QMetaObject::Connection blocking;
};

Runner& TheRunner()
{
    static auto* runner = new Runner;
    return *runner;
}

} // namespace

void FrameworkCall::Resume()
{
    TheRunner().Post();
}

void Disposal::Later(CObject* object, QWidget* window)
{
    const auto same = [&](const Waiting& waiting) { return object && waiting.object == object; };
    const auto found = std::find_if(Queue().begin(), Queue().end(), same);
    if (found == Queue().end())
        Queue().push_back({object, window});
    else if (window)
        found->window = window;
    FrameworkCall::s_isWaiting = true;
    TheRunner().Post();
}

void Disposal::Forget(const CObject* object)
{
    for (Waiting& waiting : Queue()) {
        if (waiting.object == object)
            waiting.object = nullptr;
    }
}

// A loop inside another one, as that of a modal box or of a drag, has been entered by code that may
// belong to what waits here.
bool Disposal::IsSafe()
{
    return FrameworkCall::s_inProgress == 0 && QThread::currentThread()->loopLevel() <= 1;
}

void Disposal::Run()
{
    if (!IsSafe()) {
        Wait();
        return;
    }
    QObject::disconnect(TheRunner().blocking);
    while (!Queue().empty()) {
        const Waiting first = Queue().front();
        Queue().erase(Queue().begin());
        delete first.object;
        delete first.window.data();
    }
    FrameworkCall::s_isWaiting = false;
}

// Nothing tells that an inner loop has ended; but the outer one comes to rest at some time.
void Disposal::Wait()
{
    Runner& runner = TheRunner();
    QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
    if (runner.blocking || !dispatcher)
        return;
    runner.blocking =
        QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, &runner, [&runner] {
            if (IsSafe())
                runner.Post();
        });
}
