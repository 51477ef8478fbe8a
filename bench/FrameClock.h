#pragma once
// When the pictures of a window reach the screen. Listens on the render thread, so that a busy
// user-interface thread does not shift the times.

#include <QObject>
#include <QQuickWindow>

#include <atomic>
#include <cstdint>
#include <functional>

namespace vasker {

/// Nanoseconds of the monotonic clock, the same for all processes of the machine.
[[nodiscard]] std::int64_t monotonicNow() noexcept;

class FrameClock : public QObject {
    Q_OBJECT

  public:
    explicit FrameClock(QQuickWindow& window);

    /// Waits for the first picture whose content was taken over after this call while `holds` was
    /// true. Returns when it was swapped.
    /// `holds` is called while the user-interface thread waits. Returns 0 after ten seconds.
    std::int64_t waitForPicture(const std::function<bool()>& holds);
    /// The same; throws std::runtime_error with `what` instead of returning 0.
    std::int64_t expectPicture(const std::function<bool()>& holds, const char* what);

    /// When the first picture of the last wait was swapped, whether it held or not.
    [[nodiscard]] std::int64_t firstPicture() const noexcept { return m_firstSwappedAt; }

  Q_SIGNALS:
    void swapped(qint64 when);

  private:
    QQuickWindow& m_window;
    std::function<bool()> m_holds;
    std::atomic<bool> m_waiting = false;
    std::atomic<bool> m_begun = false; ///< a picture was taken over since the wait began
    std::atomic<bool> m_taken = false;
    std::atomic<std::int64_t> m_firstSwappedAt = 0;
    std::atomic<std::int64_t> m_swappedAt = 0;
};

} // namespace vasker
