#include "map/basemap/TileWorkers.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <future>
#include <latch>
#include <string>

namespace vasker {
namespace {

const int one = 0;
const int two = 0;

/// A thread that is busy until it is let go, so that what is asked for meanwhile waits.
class Busy {
  public:
    explicit Busy(TileWorkers& workers) : m_workers(workers) {
        workers.setJobs(this, {[this] {
                            m_begun.set_value();
                            m_mayEnd.get_future().wait();
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
        return [this, name] {
            m_text += name;
            if (m_text.size() == m_most) {
                m_full.set_value();
            }
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

TEST(TileWorkers, TheMostUrgentIsBegunFirst) {
    TileWorkers workers(1);
    Log log;
    log.expect(3);
    Busy busy(workers);
    workers.setJobs(&one, {log.entry('a'), log.entry('b'), log.entry('c')});
    busy.end();
    EXPECT_EQ(log.text(), "abc");
    workers.remove(&one);
}

TEST(TileWorkers, WhatIsNotWantedAnyMoreIsNotBegun) {
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

TEST(TileWorkers, WhatWasBegunIsFinishedThoughItIsNotWantedAnyMore) {
    TileWorkers workers(1);
    std::promise<void> begun;
    std::promise<void> mayEnd;
    std::atomic<bool> ended = false;
    workers.setJobs(&one, {[&] {
        begun.set_value();
        mayEnd.get_future().wait();
        ended = true;
    }});
    begun.get_future().wait();
    workers.setJobs(&one, {});
    mayEnd.set_value();
    workers.remove(&one);
    EXPECT_TRUE(ended);
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
    const auto meet = [&] { together.arrive_and_wait(); };
    workers.setJobs(&one, {meet, meet, meet});
    together.wait();
    workers.remove(&one);
}

TEST(TileWorkers, WithoutAThreadThereIsOne) {
    TileWorkers workers(0);
    std::promise<void> done;
    workers.setJobs(&one, {[&] { done.set_value(); }});
    done.get_future().wait();
    workers.remove(&one);
}

TEST(TileWorkers, TheEndWaitsForWhatWasBegun) {
    std::promise<void> begun;
    std::promise<void> mayEnd;
    std::atomic<bool> ended = false;
    {
        TileWorkers workers(1);
        workers.setJobs(&one, {[&] {
            begun.set_value();
            mayEnd.get_future().wait();
            ended = true;
        }});
        begun.get_future().wait();
        mayEnd.set_value();
    }
    EXPECT_TRUE(ended);
}

} // namespace
} // namespace vasker
