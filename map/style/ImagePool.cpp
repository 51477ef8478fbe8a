#include "map/style/ImagePool.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace vasker {

namespace {

/// Sizes of blocks are multiples of this, so that tiles that differ by some pixels share them.
constexpr std::size_t step = 131'072;

struct Block {
    std::unique_ptr<uchar[]> bytes; // NOLINT(*-avoid-c-arrays): of a size known at run time only
    std::size_t size = 0;
};

class Pool {
  public:
    /// A block of at least `size` bytes, and not many more.
    Block take(std::size_t size) {
        const std::size_t rounded = (size + step - 1) / step * step;
        {
            const std::scoped_lock lock(m_mutex);
            // The last one first: the processor may still have it at hand.
            const auto found = std::find_if(m_free.rbegin(), m_free.rend(), [&](const auto& block) {
                return block.size >= rounded && block.size <= rounded + rounded / 4;
            });
            if (found != m_free.rend()) {
                m_bytes -= found->size;
                Block block = std::move(*found);
                m_free.erase(std::prev(found.base()));
                return block;
            }
        }
        // NOLINTNEXTLINE(*-avoid-c-arrays)
        return {std::make_unique_for_overwrite<uchar[]>(rounded), rounded};
    }

    void giveBack(Block block) {
        std::vector<Block> dropped; // outlives the lock
        const std::scoped_lock lock(m_mutex);
        m_bytes += block.size;
        m_free.push_back(std::move(block));
        while (m_bytes > mostPooledBytes) { // the oldest first: of a size not needed any more
            m_bytes -= m_free.front().size;
            dropped.push_back(std::move(m_free.front()));
            m_free.erase(m_free.begin());
        }
    }

    void empty() {
        std::vector<Block> dropped; // outlives the lock
        const std::scoped_lock lock(m_mutex);
        dropped.swap(m_free);
        m_bytes = 0;
    }

    std::size_t bytes() {
        const std::scoped_lock lock(m_mutex);
        return m_bytes;
    }

  private:
    std::mutex m_mutex;
    std::vector<Block> m_free; ///< the longest unused first
    std::size_t m_bytes = 0;
};

/// Never destroyed: images may outlive everything else.
Pool& pool() {
    static auto* const made = new Pool;
    return *made;
}

void giveBack(void* block) {
    const std::unique_ptr<Block> owned(static_cast<Block*>(block));
    pool().giveBack(std::move(*owned));
}

} // namespace

QImage pooledImage(int width, int height, QImage::Format format) {
    if (width <= 0 || height <= 0) {
        return {};
    }
    const qsizetype line =
        (qsizetype{width} * QImage::toPixelFormat(format).bitsPerPixel() + 31) / 32 * 4;
    auto block = std::make_unique<Block>(pool().take(static_cast<std::size_t>(line * height)));
    uchar* const bytes = block->bytes.get();
    return {bytes, width, height, line, format, giveBack, block.release()};
}

QImage pooledCopy(const QImage& image) {
    QImage copy = pooledImage(image.width(), image.height(), image.format());
    if (!copy.isNull()) {
        const auto line =
            static_cast<std::size_t>(std::min(image.bytesPerLine(), copy.bytesPerLine()));
        for (int y = 0; y < image.height(); ++y) {
            std::memcpy(copy.scanLine(y), image.constScanLine(y), line);
        }
        copy.setDevicePixelRatio(image.devicePixelRatio());
    }
    return copy;
}

void emptyImagePool() {
    pool().empty();
}

std::size_t pooledBytes() {
    return pool().bytes();
}

} // namespace vasker
