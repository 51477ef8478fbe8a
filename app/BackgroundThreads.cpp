#include "app/BackgroundThreads.h"

#include <utility>

namespace vasker {

void BackgroundThreads::start(std::function<void()> work) {
    m_threads.remove_if([](const Thread& each) { return each.finished.load(); });
    Thread& started = m_threads.emplace_back();
    started.thread = std::jthread([work = std::move(work), &finished = started.finished] {
        work();
        finished = true;
    });
}

} // namespace vasker
