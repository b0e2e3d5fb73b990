// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Values/ZEVMainThread_p.h>

#include <QCoreApplication>
#include <QThread>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <vector>

namespace {

/// What one thread asks of the main thread and waits for.
struct Call {
    enum State { Waiting, Running, Done, Refused };

    const std::function<void()> *work;
    State state = Waiting;
};

/// The calls under way. Whether a loop will still come to them is known here alone, so that none can be
/// added behind the back of the end.
class Calls {
public:
    static Calls &shared()
    {
        static Calls calls;
        return calls;
    }

    bool makeAndWait(const std::function<void()> &work)
    {
        const auto call = std::make_shared<Call>(Call{&work});
        std::unique_lock lock(m_mutex);
        if (m_hasEnded || !QCoreApplication::instance())
            return false;
        m_waiting.push_back(call);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [this, call] { run(*call); }, Qt::QueuedConnection);
        m_changed.wait(lock, [&] { return call->state == Call::Done || call->state == Call::Refused; });
        std::erase(m_waiting, call);
        return call->state == Call::Done;
    }

    void begin()
    {
        const std::scoped_lock lock(m_mutex);
        m_hasEnded = false;
    }

    void end()
    {
        const std::scoped_lock lock(m_mutex);
        m_hasEnded = true;
        for (const auto &call : m_waiting) {
            if (call->state == Call::Waiting)
                call->state = Call::Refused;
        }
        m_changed.notify_all();
    }

private:
    /// The state is looked at and set under the lock, the work is done without it: it may run a loop, in
    /// which other calls come to be run.
    void run(Call &call)
    {
        if (!pass(call, Call::Waiting, Call::Running))
            return;
        (*call.work)();
        pass(call, Call::Running, Call::Done);
    }

    bool pass(Call &call, Call::State from, Call::State to)
    {
        const std::scoped_lock lock(m_mutex);
        if (call.state != from)
            return false;
        call.state = to;
        m_changed.notify_all();
        return true;
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<std::shared_ptr<Call>> m_waiting;
    bool m_hasEnded = false;
};

/// A program may run its loop once more after it has ended: what is posted now is seen only then.
void watchApplication()
{
    Calls::shared().begin();
    QCoreApplication *application = QCoreApplication::instance();
    QObject::connect(application, &QCoreApplication::aboutToQuit, application, [application] {
        Calls::shared().end();
        QMetaObject::invokeMethod(
            application, [] { Calls::shared().begin(); }, Qt::QueuedConnection);
    });
    QObject::connect(application, &QObject::destroyed, [] { Calls::shared().end(); });
}

Q_COREAPP_STARTUP_FUNCTION(watchApplication)

} // namespace

bool ZEVMainThread::isMainThread()
{
    const QCoreApplication *application = QCoreApplication::instance();
    return !application || QThread::currentThread() == application->thread();
}

bool ZEVMainThread::callAndWait(const std::function<void()> &work)
{
    if (!isMainThread())
        return Calls::shared().makeAndWait(work);
    work();
    return true;
}
