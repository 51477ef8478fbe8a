#include "map/tiles/ImageryFormat.h"

namespace vasker {

const char* imageryFormat(std::string_view bytes) noexcept {
    if (bytes.starts_with("\xff\xd8\xff")) {
        return "jpeg";
    }
    if (bytes.starts_with("\x89PNG\r\n\x1a\n")) {
        return "png";
    }
    if (bytes.size() >= 12 && bytes.starts_with("RIFF") && bytes.substr(8, 4) == "WEBP") {
        return "webp";
    }
    return nullptr;
}

int jpegScans(std::string_view bytes, int most) noexcept {
    // Markers are a byte 0xFF and one that is neither 0 (a byte 0xFF of the image) nor 0xFF (fill).
    // Headers may hold what looks like one: their length tells where they end.
    constexpr char startOfScan = '\xda';
    const auto hasHeader = [](char marker) {
        const auto code = static_cast<unsigned char>(marker);
        return code >= 0xc0 && code < 0xff && (code < 0xd0 || code > 0xd9); // else it stands alone
    };
    int scans = 0;
    for (std::size_t at = bytes.find('\xff'); at < bytes.size() - 1 && scans <= most;
         at = bytes.find('\xff', at)) {
        const char marker = bytes[++at];
        scans += marker == startOfScan ? 1 : 0;
        if (hasHeader(marker) && at + 2 < bytes.size()) {
            at += static_cast<unsigned char>(bytes[at + 1]) * 256U +
                  static_cast<unsigned char>(bytes[at + 2]) + 1U;
        }
    }
    return scans;
}

} // namespace vasker
