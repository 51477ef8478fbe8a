#pragma once
// Bytes to records, by type only: what the values say is the matter of ReleaseRules.
//
// Every function takes one JSON document, holds nothing between calls and may run on any thread.
// A document that is not JSON, a required key that is missing or null and a value of the wrong JSON
// type throw the JSON library's own error, a std::exception; it is an OpenMapRelease::Located as
// well where the place is known. Deep nesting is the library's error too (from 1,024 levels on).
//
// Numbers: `schemaVersion` is a JSON integer that fits 64 bits, so 1.0 and 1e0 are of the wrong
// type. Coordinates are any JSON number that the library reads: an integer beyond 64 bits and a
// number beyond the range of a double are its errors. Keys: one that a record does not know is
// passed over here. Of a repeated key only the last value counts, for its type, its content and its
// keys; the earlier ones are not looked at. Positions: an array of numbers whose count is not two
// is read as the position {NaN, NaN}, which JSON cannot express otherwise, so that the rules find
// it at its place in their order.

#include "data/OpenMapRelease.h"

#include <optional>
#include <string>
#include <string_view>

namespace vasker {

[[nodiscard]] OpenMapRelease readRelease(std::string_view json);
[[nodiscard]] OpenMapRelease::Source readSource(std::string_view json);
[[nodiscard]] OpenMapRelease::Asset readAsset(std::string_view json);
[[nodiscard]] OpenMapRelease::Fact readFact(std::string_view json);

struct ReleaseReading {
    OpenMapRelease release;
    /// The place of the first key that no record knows, such as "assets[3].facts[0].unit", in the
    /// order: the root's keys, the sources', then every asset's with its facts' behind them.
    std::optional<std::string> firstUnknownKey;
};

/// A release and the check for unknown keys, from one parse.
[[nodiscard]] ReleaseReading readReleaseAndKeys(std::string_view json);

} // namespace vasker
