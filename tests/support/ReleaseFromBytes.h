#pragma once
// Releases in which bytes decide what is unusual, so that a fuzzer or a random sequence reaches
// every rule.

#include "data/OpenMapRelease.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace vasker {

/// Returns a valid release in which each step of `bytes` changes something: a text, a number or how
/// many of something there are. Any bytes are good, and a few of them change little. The release
/// can be written by encode().
[[nodiscard]] OpenMapRelease releaseFrom(std::span<const std::uint8_t> bytes);

} // namespace vasker
