#pragma once
// Runs work on threads of its own and delivers each result in the thread of an object that waits
// for it.

#include <QObject>

#include <functional>
#include <memory>
#include <mutex>
#include <stop_token>
#include <utility>

namespace vasker {

/// What becomes of work that is under way when the program ends.
enum class AtExit {
    abandon, ///< nobody waits for it: what it does is of no use without the program
    finish   ///< it gets some seconds to come to its end
};

/// Where a result goes: to an object of the user interface, or nowhere once that is destroyed.
class BackgroundLink {
  public:
    /// Delivers in the thread of `task`.
    explicit BackgroundLink(QObject* task) : m_task(task) {}

    /// Asks to stop once the task is destroyed.
    [[nodiscard]] std::stop_token stopToken() const { return m_stop.get_token(); }
    /// Has `deliver` called in the task's thread, which then destroys the task. Any thread.
    void post(std::function<void()> deliver);
    /// The task is being destroyed.
    void cut();

  private:
    std::mutex m_mutex;
    QObject* m_task; ///< guarded by m_mutex; null when it is destroyed
    std::stop_source m_stop;
};

/// Starts a thread that nobody waits for, except finishBackgroundWork(). Throws std::system_error
/// if the system has no thread to give.
void startBackgroundThread(std::function<void()> work, AtExit atExit);

/// Calls `work(std::stop_token)` on a thread of its own and then `deliver(result)` in the thread of
/// `receiver`, which is the calling one. `work` owns all that it uses and throws nothing.
///
/// If `receiver` is destroyed first, the token asks to stop and the result is dropped. Throws
/// std::system_error if the system has no thread to give; then neither function is called.
template <typename Work, typename Deliver>
void runInBackground(QObject* receiver,
                     Work work,
                     Deliver deliver,
                     AtExit atExit = AtExit::abandon) {
    auto task = std::make_unique<QObject>();
    const auto link = std::make_shared<BackgroundLink>(task.get());
    QObject::connect(task.get(), &QObject::destroyed, [link] { link->cut(); });
    startBackgroundThread(
        [link, work = std::move(work), deliver = std::move(deliver)] {
            link->post([deliver, result = work(link->stopToken())] { deliver(result); });
        },
        atExit);
    task.release()->setParent(receiver);
}

/// Gives work that is to be finished up to ten seconds, and any other 0.2 seconds. Returns whether
/// all work has ended; if not, some thread hangs, and only std::_Exit() ends the program safely.
[[nodiscard]] bool finishBackgroundWork();

} // namespace vasker
