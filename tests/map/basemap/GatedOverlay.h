#pragma once
// An overlay that lets no raster tile be finished before the test says so, and remembers which were
// begun.

#include "map/style/TileOverlay.h"

#include <condition_variable>
#include <mutex>
#include <vector>

namespace vasker {

class GatedOverlay final : public TileOverlay {
  public:
    void paint(QImage& /*image*/, const MapRect& bounds, double /*scale*/) const override {
        std::unique_lock lock(m_mutex);
        m_begun.push_back(bounds);
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return m_isOpen; });
    }

    void open() { set(true); }
    void close() { set(false); }
    /// Waits for a tile that was begun.
    void waitForOne() const {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return !m_begun.empty(); });
    }
    /// What has been begun, in map points.
    [[nodiscard]] std::vector<MapRect> begun() const {
        const std::scoped_lock lock(m_mutex);
        return m_begun;
    }

  private:
    void set(bool isOpen) {
        {
            const std::scoped_lock lock(m_mutex);
            m_isOpen = isOpen;
        }
        m_changed.notify_all();
    }

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    mutable std::vector<MapRect> m_begun;
    bool m_isOpen = false;
};

} // namespace vasker
