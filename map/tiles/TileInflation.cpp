#include "map/tiles/TileInflation.h"

#define ZLIB_CONST // or the input could not be const
#include <zlib.h>

#include <algorithm>

namespace vasker {

namespace {

constexpr std::size_t firstBuffer = 65'536;
constexpr int gzipOrZlib = 15 + 32; // the largest window; the header tells which

unsigned byteAt(std::string_view bytes, std::size_t index) {
    return static_cast<unsigned char>(bytes[index]);
}

bool isGzip(std::string_view bytes) {
    return bytes.size() >= 2 && byteAt(bytes, 0) == 0x1F && byteAt(bytes, 1) == 0x8B;
}

/// Deflate with a window of 32 kB, and a checksum in the header (RFC 1950). No tile begins so: 0x78
/// would be its 15th field.
bool isZlib(std::string_view bytes) {
    return bytes.size() >= 2 && byteAt(bytes, 0) == 0x78 &&
           (byteAt(bytes, 0) * 256 + byteAt(bytes, 1)) % 31 == 0;
}

class Inflater {
  public:
    explicit Inflater(std::string_view bytes)
        : m_stream(streamOf(bytes)), m_isReady(inflateInit2(&m_stream, gzipOrZlib) == Z_OK) {}
    ~Inflater() {
        if (m_isReady) {
            inflateEnd(&m_stream);
        }
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;

    std::optional<std::string> run() {
        std::string out;
        int result = m_isReady ? Z_OK : Z_STREAM_ERROR;
        while (result == Z_OK && out.size() < maximumTileBytes + 1) {
            const std::size_t had = out.size();
            out.resize(std::min(std::max(firstBuffer, 2 * had), maximumTileBytes + 1));
            m_stream.next_out = reinterpret_cast<Bytef*>(out.data() + had);
            m_stream.avail_out = static_cast<uInt>(out.size() - had);
            result = inflate(&m_stream, Z_NO_FLUSH);
            out.resize(out.size() - m_stream.avail_out);
        }
        const bool isTile = result == Z_STREAM_END && out.size() <= maximumTileBytes;
        return isTile ? std::optional(std::move(out)) : std::nullopt;
    }

  private:
    static z_stream streamOf(std::string_view bytes) {
        z_stream stream{};
        stream.next_in = reinterpret_cast<const Bytef*>(bytes.data());
        stream.avail_in = static_cast<uInt>(bytes.size());
        return stream;
    }

    z_stream m_stream;
    bool m_isReady;
};

} // namespace

std::optional<std::string> inflatedTile(std::string_view bytes) {
    if (bytes.size() > maximumTileBytes) {
        return std::nullopt;
    }
    if (isGzip(bytes) || isZlib(bytes)) {
        return Inflater(bytes).run();
    }
    return std::string(bytes);
}

} // namespace vasker
