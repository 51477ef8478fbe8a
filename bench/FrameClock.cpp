#include "bench/FrameClock.h"

#include <QEventLoop>
#include <QTimer>

#include <ctime>
#include <stdexcept>
#include <string>

namespace vasker {

std::int64_t monotonicNow() noexcept {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return std::int64_t{now.tv_sec} * 1'000'000'000 + now.tv_nsec;
}

FrameClock::FrameClock(QQuickWindow& window) : m_window(window) {
    connect(
        &window,
        &QQuickWindow::afterSynchronizing,
        this,
        [this] {
            m_begun = m_begun || m_waiting;
            m_taken = m_taken || (m_waiting && m_holds());
        },
        Qt::DirectConnection);
    connect(
        &window,
        &QQuickWindow::frameSwapped,
        this,
        [this] {
            const std::int64_t now = monotonicNow();
            if (m_begun && m_firstSwappedAt == 0) {
                m_firstSwappedAt = now;
            }
            if (m_waiting && m_taken) {
                m_waiting = false;
                m_swappedAt = now;
            }
            Q_EMIT swapped(now);
        },
        Qt::DirectConnection);
}

std::int64_t FrameClock::waitForPicture(const std::function<bool()>& holds) {
    m_holds = holds;
    m_begun = false;
    m_taken = false;
    m_firstSwappedAt = 0;
    m_swappedAt = 0;
    m_waiting = true;
    QEventLoop loop;
    connect(this, &FrameClock::swapped, &loop, [&] {
        if (m_swappedAt != 0) {
            loop.quit();
        }
    });
    QTimer::singleShot(10'000, &loop, &QEventLoop::quit);
    m_window.update();
    loop.exec();
    m_waiting = false;
    return m_swappedAt;
}

std::int64_t FrameClock::expectPicture(const std::function<bool()>& holds, const char* what) {
    const std::int64_t shown = waitForPicture(holds);
    if (shown == 0) {
        throw std::runtime_error(std::string("no picture: ") + what);
    }
    return shown;
}

} // namespace vasker
