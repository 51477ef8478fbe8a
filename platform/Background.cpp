#include "platform/Background.h"

#include <chrono>
#include <condition_variable>
#include <thread>

namespace vasker {

namespace {

using namespace std::chrono_literals;

constexpr auto patienceForUsefulWork = 10s;
constexpr auto patienceForOtherWork = 200ms;

struct Threads {
    std::mutex mutex;
    std::condition_variable ended;
    int running = 0;
    int useful = 0; ///< of those, how many are to be finished
};

// Never destroyed: a thread that hangs outlives everything.
Threads& threads() {
    static auto* const all = new Threads;
    return *all;
}

void count(AtExit atExit, int change) {
    const std::scoped_lock lock(threads().mutex);
    threads().running += change;
    threads().useful += atExit == AtExit::finish ? change : 0;
    threads().ended.notify_all();
}

} // namespace

void BackgroundLink::post(std::function<void()> deliver) {
    const std::scoped_lock lock(m_mutex);
    if (m_task == nullptr) {
        return;
    }
    const auto callAndEnd = [task = m_task, deliver = std::move(deliver)] {
        task->deleteLater(); // first: what is called may destroy it
        deliver();
    };
    QMetaObject::invokeMethod(m_task, callAndEnd, Qt::QueuedConnection);
}

void BackgroundLink::cut() {
    {
        const std::scoped_lock lock(m_mutex);
        m_task = nullptr;
    }
    m_stop.request_stop();
}

void startBackgroundThread(std::function<void()> work, AtExit atExit) {
    count(atExit, 1);
    try {
        std::thread([work = std::move(work), atExit]() mutable {
            work();
            work = nullptr;
            count(atExit, -1);
        }).detach();
    } catch (...) {
        count(atExit, -1);
        throw;
    }
}

bool finishBackgroundWork() {
    std::unique_lock lock(threads().mutex);
    threads().ended.wait_for(lock, patienceForUsefulWork, [] { return threads().useful == 0; });
    return threads().ended.wait_for(
        lock, patienceForOtherWork, [] { return threads().running == 0; });
}

} // namespace vasker
