#include "map/basemap/TileWorkers.h"

#include "platform/ThreadPriority.h"

#include <algorithm>
#include <condition_variable>
#include <map>
#include <mutex>
#include <utility>

namespace vasker {

namespace {

/// What a running job has to end in, when the program ends.
constexpr std::chrono::milliseconds timeToEnd{250};

} // namespace

struct TileWorkers::State {
    struct Client {
        std::uint64_t number = 0; ///< another one each time a client comes anew
        std::vector<Job> waiting; ///< the most urgent last
        int running = 0;
        std::stop_source stop;
    };
    struct Done {
        const void* client;
        std::uint64_t clientNumber;
        Completion completion;
    };

    std::mutex mutex;
    std::condition_variable changed;
    std::map<const void*, Client> clients;
    std::vector<Done> done;
    const void* lastServed = nullptr;
    std::uint64_t lastNumber = 0;
    int running = 0; ///< jobs of all clients, those that went included
    bool isEnding = false;
    TileWorkers* receiver = nullptr; ///< null once it is gone

    /// The client whose turn it is; the end where no job waits.
    std::map<const void*, Client>::iterator next() {
        const auto waits = [](const auto& client) { return !client.second.waiting.empty(); };
        const auto found = std::find_if(clients.upper_bound(lastServed), clients.end(), waits);
        return found != clients.end() ? found : std::find_if(clients.begin(), clients.end(), waits);
    }
};

TileWorkers::TileWorkers(unsigned threads) : m_state(std::make_shared<State>()) {
    m_state->receiver = this;
    for (unsigned i = 0; i < std::max(1U, threads); ++i) {
        m_threads.emplace_back([state = m_state] { run(state); });
    }
}

TileWorkers::~TileWorkers() {
    std::unique_lock lock(m_state->mutex);
    m_state->receiver = nullptr;
    m_state->isEnding = true;
    for (auto& [client, entry] : m_state->clients) {
        entry.waiting.clear();
        entry.stop.request_stop();
    }
    m_state->changed.notify_all();
    const bool isIdle =
        m_state->changed.wait_for(lock, timeToEnd, [this] { return m_state->running == 0; });
    lock.unlock();
    for (std::thread& thread : m_threads) {
        isIdle ? thread.join() : thread.detach();
    }
}

void TileWorkers::setJobs(const void* client, std::vector<Job> jobs) {
    std::vector<Job> dropped; // outlives the lock
    {
        const std::scoped_lock lock(m_state->mutex);
        auto [entry, isNew] = m_state->clients.try_emplace(client);
        if (isNew) {
            entry->second.number = ++m_state->lastNumber;
        }
        std::reverse(jobs.begin(), jobs.end());
        dropped = std::exchange(entry->second.waiting, std::move(jobs));
    }
    m_state->changed.notify_all();
}

void TileWorkers::remove(const void* client) {
    State::Client dropped{}; // outlives the lock
    const std::scoped_lock lock(m_state->mutex);
    const auto found = m_state->clients.find(client);
    if (found != m_state->clients.end()) {
        found->second.stop.request_stop();
        dropped = std::move(found->second);
        m_state->clients.erase(found);
    }
}

void TileWorkers::wait(const void* client, std::chrono::milliseconds patience) {
    {
        std::unique_lock lock(m_state->mutex);
        m_state->changed.wait_for(lock, patience, [&] {
            const auto found = m_state->clients.find(client);
            return found == m_state->clients.end() ||
                   (found->second.waiting.empty() && found->second.running == 0);
        });
    }
    runCompletions();
}

void TileWorkers::runCompletions() {
    std::vector<State::Done> done;
    {
        const std::scoped_lock lock(m_state->mutex);
        done = std::exchange(m_state->done, {});
    }
    for (const State::Done& each : done) {
        bool isNeeded = false;
        { // a completion may remove the client of another one
            const std::scoped_lock lock(m_state->mutex);
            const auto client = m_state->clients.find(each.client);
            isNeeded =
                client != m_state->clients.end() && client->second.number == each.clientNumber;
        }
        if (isNeeded) {
            each.completion();
        }
    }
}

void TileWorkers::run(const std::shared_ptr<State>& state) {
    lowerThreadPriority();
    std::unique_lock lock(state->mutex);
    while (true) {
        auto client = state->clients.end();
        state->changed.wait(lock, [&] {
            client = state->next();
            return state->isEnding || client != state->clients.end();
        });
        if (state->isEnding) {
            return;
        }
        const void* const key = state->lastServed = client->first;
        const std::uint64_t number = client->second.number;
        const std::stop_token stop = client->second.stop.get_token();
        Job job = std::move(client->second.waiting.back());
        client->second.waiting.pop_back();
        ++client->second.running;
        ++state->running;
        lock.unlock();
        Completion completion;
        try {
            completion = job(stop);
        } catch (...) {
            completion = nullptr;
        }
        job = nullptr;
        lock.lock();
        --state->running;
        client = state->clients.find(key);
        if (client != state->clients.end() && client->second.number == number) {
            --client->second.running;
            if (completion && state->receiver != nullptr) {
                if (state->done.empty()) {
                    QMetaObject::invokeMethod(
                        state->receiver, &TileWorkers::runCompletions, Qt::QueuedConnection);
                }
                state->done.push_back({key, number, std::move(completion)});
            }
        }
        state->changed.notify_all();
    }
}

} // namespace vasker
