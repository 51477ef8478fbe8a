#pragma once
// Inflates tiles, which are stored and sent compressed.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vasker {

/// The largest tile that is decoded, after inflation, in bytes.
inline constexpr std::size_t maximumTileBytes = 8'000'000;

/// `bytes` inflated if they are gzip or zlib, else as they are; nothing where that fails, breaks
/// off or grows beyond maximumTileBytes.
[[nodiscard]] std::optional<std::string> inflatedTile(std::string_view bytes);

} // namespace vasker
