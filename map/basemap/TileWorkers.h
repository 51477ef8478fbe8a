#pragma once
// Threads that decode and paint, with less priority than what the user sees. What is not wanted any
// more is not begun.

#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

namespace vasker {

class TileWorkers {
  public:
    using Job = std::function<void()>; ///< throws nothing; runs on any of the threads

    /// At least one thread.
    explicit TileWorkers(unsigned threads);
    /// Waits for jobs that were begun; drops the others.
    ~TileWorkers();
    TileWorkers(const TileWorkers&) = delete;
    TileWorkers& operator=(const TileWorkers&) = delete;

    /// These are all that `client` still wants, the most urgent first; what it wanted before and
    /// has not been begun is dropped. Jobs of several clients are begun in turns. Any thread.
    void setJobs(const void* client, std::vector<Job> jobs);
    /// `client` wants nothing any more; waits for its jobs that were begun. Not from a job.
    void remove(const void* client);

  private:
    struct Client {
        std::vector<Job> waiting; ///< the most urgent last
        int running = 0;
    };

    void run(const std::stop_token& stop);

    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    std::map<const void*, Client> m_clients;
    const void* m_lastServed = nullptr;
    std::vector<std::jthread> m_threads;
};

} // namespace vasker
