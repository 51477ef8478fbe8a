#pragma once
// Threads that decode and paint, with less priority than what the user sees. Jobs that are no
// longer needed are not begun, and those that run are told to stop.

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <stop_token>
#include <thread>
#include <vector>

namespace vasker {

class TileWorkers : public QObject {
    Q_OBJECT

  public:
    /// What is left to be done on the thread of the TileWorkers; may be empty.
    using Completion = std::function<void()>;
    /// Runs on any of the threads; ends soon when the token asks for it. What it throws costs the
    /// job.
    using Job = std::function<Completion(const std::stop_token&)>;

    /// At least one thread.
    explicit TileWorkers(unsigned threads);
    /// Drops all jobs. Those that run have a moment to end; one that does not is left to itself: a
    /// job owns all that it uses.
    ~TileWorkers() override;

    /// These are all the jobs that `client` still needs, the most urgent first; what it asked for
    /// before and has not been begun is dropped. Jobs of several clients are begun in turns.
    void setJobs(const void* client, std::vector<Job> jobs);
    /// `client` needs nothing any more: none of its completions runs from here on. Does not wait.
    void remove(const void* client);
    /// Waits until the jobs of `client` are done, but no longer than `patience`, and runs the
    /// completions that are there.
    void wait(const void* client, std::chrono::milliseconds patience);

  private:
    struct State;

    static void run(const std::shared_ptr<State>& state);
    void runCompletions();

    std::shared_ptr<State> m_state; ///< shared with the threads
    std::vector<std::thread> m_threads;
};

} // namespace vasker
