#include "map/basemap/TileWorkers.h"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>

namespace vasker {

namespace {

/// Frames and input go first; but who holds a lock that they wait for must come to its end.
constexpr int niceness = 10;

} // namespace

TileWorkers::TileWorkers(unsigned threads) {
    for (unsigned i = 0; i < std::max(1U, threads); ++i) {
        m_threads.emplace_back([this](const std::stop_token& stop) { run(stop); });
    }
}

TileWorkers::~TileWorkers() {
    const std::scoped_lock lock(m_mutex);
    for (std::jthread& thread : m_threads) {
        thread.request_stop();
    }
}

void TileWorkers::setJobs(const void* client, std::vector<Job> jobs) {
    {
        const std::scoped_lock lock(m_mutex);
        std::reverse(jobs.begin(), jobs.end());
        m_clients[client].waiting = std::move(jobs);
    }
    m_changed.notify_all();
}

void TileWorkers::remove(const void* client) {
    std::unique_lock lock(m_mutex);
    const auto found = m_clients.find(client);
    if (found == m_clients.end()) {
        return;
    }
    found->second.waiting.clear();
    m_changed.wait(lock, [&] { return found->second.running == 0; });
    m_clients.erase(found);
}

void TileWorkers::run(const std::stop_token& stop) {
    // Linux gives each thread a priority of its own.
    ::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), niceness);
    std::unique_lock lock(m_mutex);
    const auto waits = [](const auto& client) { return !client.second.waiting.empty(); };
    while (true) {
        m_changed.wait(
            lock, stop, [&] { return std::any_of(m_clients.begin(), m_clients.end(), waits); });
        if (stop.stop_requested()) {
            return;
        }
        auto next = std::find_if(m_clients.upper_bound(m_lastServed), m_clients.end(), waits);
        if (next == m_clients.end()) {
            next = std::find_if(m_clients.begin(), m_clients.end(), waits);
        }
        m_lastServed = next->first;
        Client& client = next->second;
        const Job job = std::move(client.waiting.back());
        client.waiting.pop_back();
        ++client.running;
        lock.unlock();
        job();
        lock.lock();
        --client.running;
        m_changed.notify_all();
    }
}

} // namespace vasker
