#include "map/tiles/ImageryFormat.h"

namespace vasker {

namespace {

constexpr std::string_view pngSignature = "\x89PNG\r\n\x1a\n";

unsigned char unsignedByte(std::string_view bytes, std::size_t index) noexcept {
    return static_cast<unsigned char>(bytes[index]);
}

/// Capitals tell what decoders must know; transparency is the only other one that matters.
bool isOfPixels(std::string_view chunkType) noexcept {
    return (chunkType.front() >= 'A' && chunkType.front() <= 'Z') || chunkType == "tRNS";
}

} // namespace

const char* imageryFormat(std::string_view bytes) noexcept {
    if (bytes.starts_with("\xff\xd8\xff")) {
        return "jpeg";
    }
    if (bytes.starts_with(pngSignature)) {
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
            at += unsignedByte(bytes, at + 1) * 256U + unsignedByte(bytes, at + 2) + 1U;
        }
    }
    return scans;
}

std::string pngPixels(std::string_view bytes) {
    // A chunk is the length of its data, its type, each in four bytes, the data, and a checksum.
    constexpr std::size_t head = 8;
    constexpr std::size_t overhead = head + 4;
    std::string pixels(bytes.substr(0, pngSignature.size()));
    std::size_t at = pixels.size();
    while (bytes.size() - at >= overhead) {
        std::size_t length = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            length = length * 256 + unsignedByte(bytes, at + i);
        }
        if (length > bytes.size() - at - overhead) {
            break;
        }
        const std::string_view chunk = bytes.substr(at, length + overhead);
        const std::string_view type = chunk.substr(4, 4);
        if (isOfPixels(type)) {
            pixels += chunk;
        }
        if (type == "IEND") {
            break;
        }
        at += chunk.size();
    }
    return pixels;
}

} // namespace vasker
