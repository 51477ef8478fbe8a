#pragma once
// The threads of the application's background work. Whoever owns this ends after all of them.

#include <atomic>
#include <functional>
#include <list>
#include <thread>

namespace vasker {

class BackgroundThreads {
  public:
    BackgroundThreads() = default;
    BackgroundThreads(const BackgroundThreads&) = delete;
    BackgroundThreads& operator=(const BackgroundThreads&) = delete;
    /// Waits for all work.
    ~BackgroundThreads() = default;

    /// Runs `work`, which throws nothing, on a thread of its own. Throws std::system_error where
    /// the system has no thread to give. User-interface thread.
    void start(std::function<void()> work);

  private:
    struct Thread {
        std::atomic<bool> finished = false;
        std::jthread thread;
    };
    std::list<Thread> m_threads;
};

} // namespace vasker
