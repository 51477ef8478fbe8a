#pragma once
// What the bytes of an imagery tile say before they are decoded.

#include <string>
#include <string_view>

namespace vasker {

/// "jpeg", "png" or "webp"; null for any other format.
[[nodiscard]] const char* imageryFormat(std::string_view bytes) noexcept;

/// How many scans a JPEG image consists of; each of them goes over the whole image, so that few
/// bytes can ask for much time. Counts no further than `most` and one.
[[nodiscard]] int jpegScans(std::string_view bytes, int most) noexcept;

/// A PNG image without what its pixels do not need: texts and profiles are deflated, so that few
/// bytes can ask for gigabytes. Ends where the image does, or behind the last whole chunk.
[[nodiscard]] std::string pngPixels(std::string_view bytes);

} // namespace vasker
