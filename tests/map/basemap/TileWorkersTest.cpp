#include "map/basemap/TileWorkers.h"

#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <future>
#include <latch>
#include <memory>
#include <new>
#include <string>
#include <thread>

namespace vasker {
namespace {

constexpr std::chrono::seconds patience(20);

const int one = 0;
const int two = 0;

/// A thread that is busy until it is let go, so that other jobs wait.
class Busy {
  public:
    explicit Busy(TileWorkers& workers) : m_workers(workers) {
        workers.setJobs(this, {[this](const std::stop_token&) -> TileWorkers::Completion {
                            m_begun.set_value();
                            m_mayEnd.get_future().wait();
                            return {};
                        }});
        m_begun.get_future().wait();
    }
    ~Busy() { m_workers.remove(this); }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
    void end() { m_mayEnd.set_value(); }

  private:
    TileWorkers& m_workers;
    std::promise<void> m_begun;
    std::promise<void> m_mayEnd;
};

/// What one thread does, in order.
class Log {
  public:
    [[nodiscard]] TileWorkers::Job entry(char name) {
        return [this, name](const std::stop_token&) -> TileWorkers::Completion {
            m_text += name;
            if (m_text.size() == m_most) {
                m_full.set_value();
            }
            return {};
        };
    }
    /// Once so many entries are there.
    void expect(std::size_t most) { m_most = most; }
    std::string text() {
        m_full.get_future().wait();
        return m_text;
    }

  private:
    std::string m_text;
    std::size_t m_most = 0;
    std::promise<void> m_full;
};

TEST(TileWorkers, TheMostUrgentJobIsBegunFirst) {
    TileWorkers workers(1);
    Log log;
    log.expect(3);
    Busy busy(workers);
    workers.setJobs(&one, {log.entry('a'), log.entry('b'), log.entry('c')});
    busy.end();
    EXPECT_EQ(log.text(), "abc");
    workers.remove(&one);
}

TEST(TileWorkers, WhatIsNoLongerNeededIsNotBegun) {
    TileWorkers workers(1);
    Log log;
    log.expect(2);
    Busy busy(workers);
    workers.setJobs(&one, {log.entry('a'), log.entry('b')});
    workers.setJobs(&one, {log.entry('c'), log.entry('d')});
    busy.end();
    EXPECT_EQ(log.text(), "cd");
    workers.remove(&one);
}

TEST(TileWorkers, WhatWasBegunIsFinishedThoughItIsNoLongerNeeded) {
    TileWorkers workers(1);
    std::promise<void> begun;
    std::promise<void> mayEnd;
    bool isDone = false;
    workers.setJobs(&one, {[&](const std::stop_token&) -> TileWorkers::Completion {
        begun.set_value();
        mayEnd.get_future().wait();
        return [&isDone] { isDone = true; };
    }});
    begun.get_future().wait();
    workers.setJobs(&one, {});
    mayEnd.set_value();
    workers.wait(&one, patience);
    EXPECT_TRUE(isDone);
}

TEST(TileWorkers, ACompletionRunsOnTheThreadOfTheWorkers) {
    TileWorkers workers(2);
    std::thread::id thread;
    QEventLoop loop;
    workers.setJobs(&one, {[&](const std::stop_token&) -> TileWorkers::Completion {
        return [&] {
            thread = std::this_thread::get_id();
            loop.quit();
        };
    }});
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    loop.exec();
    EXPECT_EQ(thread, std::this_thread::get_id());
}

TEST(TileWorkers, OfAClientThatLeftNoCompletionRuns) {
    TileWorkers workers(1);
    std::promise<void> begun;
    std::promise<void> mayEnd;
    bool isDone = false;
    workers.setJobs(&one, {[&](const std::stop_token&) -> TileWorkers::Completion {
        begun.set_value();
        mayEnd.get_future().wait();
        return [&isDone] { isDone = true; };
    }});
    begun.get_future().wait();
    workers.remove(&one); // does not wait
    std::promise<void> later;
    workers.setJobs(&one, {[&](const std::stop_token&) -> TileWorkers::Completion {
        later.set_value();
        return {};
    }});
    mayEnd.set_value();
    later.get_future().wait();
    workers.wait(&one, patience);
    EXPECT_FALSE(isDone);
}

TEST(TileWorkers, AJobOfAClientThatLeftIsToldToStop) {
    TileWorkers workers(1);
    std::promise<void> begun;
    std::promise<void> stopped;
    workers.setJobs(&one, {[&](const std::stop_token& stop) -> TileWorkers::Completion {
        begun.set_value();
        while (!stop.stop_requested()) {
            std::this_thread::yield();
        }
        stopped.set_value();
        return {};
    }});
    begun.get_future().wait();
    workers.remove(&one);
    EXPECT_EQ(stopped.get_future().wait_for(patience), std::future_status::ready);
}

TEST(TileWorkers, AJobThatThrowsCostsItselfOnly) {
    TileWorkers workers(1);
    bool isDone = false;
    workers.setJobs(
        &one,
        {[](const std::stop_token&) -> TileWorkers::Completion { throw std::bad_alloc(); },
         [&](const std::stop_token&) -> TileWorkers::Completion {
             return [&isDone] { isDone = true; };
         }});
    workers.wait(&one, patience);
    EXPECT_TRUE(isDone);
}

TEST(TileWorkers, ClientsTakeTurns) {
    TileWorkers workers(1);
    const std::array<int, 2> clients{};
    Log log;
    log.expect(6);
    Busy busy(workers);
    workers.setJobs(&clients[0], {log.entry('a'), log.entry('b'), log.entry('c')});
    workers.setJobs(&clients[1], {log.entry('1'), log.entry('2'), log.entry('3')});
    busy.end();
    const std::string text = log.text();
    EXPECT_TRUE(text == "a1b2c3" || text == "1a2b3c") << text;
    workers.remove(&clients[0]);
    workers.remove(&clients[1]);
}

TEST(TileWorkers, AClientThatLeavesTakesItsJobsWithItAndNobodyElses) {
    TileWorkers workers(1);
    Log log;
    log.expect(1);
    Busy busy(workers);
    workers.setJobs(&one, {log.entry('a')});
    workers.setJobs(&two, {log.entry('b')});
    workers.remove(&one);
    busy.end();
    EXPECT_EQ(log.text(), "b");
    workers.remove(&two);
}

TEST(TileWorkers, WhoLeavesMayComeAgain) {
    TileWorkers workers(1);
    workers.remove(&one);
    Log log;
    log.expect(1);
    workers.setJobs(&one, {log.entry('a')});
    EXPECT_EQ(log.text(), "a");
    workers.remove(&one);
    workers.remove(&one);
}

TEST(TileWorkers, SeveralThreadsWorkAtOnce) {
    TileWorkers workers(3);
    std::latch together(3); // none goes on before the others have come
    const auto meet = [&](const std::stop_token&) -> TileWorkers::Completion {
        together.arrive_and_wait();
        return {};
    };
    workers.setJobs(&one, {meet, meet, meet});
    together.wait();
    workers.wait(&one, patience);
}

TEST(TileWorkers, WithoutAThreadThereIsOne) {
    TileWorkers workers(0);
    bool isDone = false;
    workers.setJobs(&one, {[&](const std::stop_token&) -> TileWorkers::Completion {
        return [&isDone] { isDone = true; };
    }});
    workers.wait(&one, patience);
    EXPECT_TRUE(isDone);
}

TEST(TileWorkers, TheEndWaitsAMomentForWhatWasBegunAndNoLonger) {
    const auto stuck = std::make_shared<std::promise<void>>();
    const auto begun = std::make_shared<std::promise<void>>();
    const auto start = std::chrono::steady_clock::now();
    {
        TileWorkers workers(1);
        workers.setJobs(&one, {[stuck, begun](const std::stop_token&) -> TileWorkers::Completion {
            begun->set_value();
            stuck->get_future().wait_for(patience);
            return {};
        }});
        begun->get_future().wait();
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, patience / 2);
    stuck->set_value();
}

} // namespace
} // namespace vasker
