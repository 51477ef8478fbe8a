#pragma once
// Records to JSON: every field under its key, in the order of the fields; an absent company has no
// key. Numbers are written so that they read back to the same value, and what the reader takes for
// no pair is written as a position without numbers. Compact, UTF-8, no BOM. Texts have to be UTF-8;
// an infinite or undefined coordinate throws std::domain_error.

#include "data/OpenMapRelease.h"

#include <string>

namespace vasker {

[[nodiscard]] std::string encode(const OpenMapRelease& release);
[[nodiscard]] std::string encode(const OpenMapRelease::Source& source);
[[nodiscard]] std::string encode(const OpenMapRelease::Asset& asset);
[[nodiscard]] std::string encode(const OpenMapRelease::Fact& fact);

} // namespace vasker
