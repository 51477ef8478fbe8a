#pragma once
// Reads the records of a release from JSON. What their values mean is checked by ReleaseRules.
//
// Each function takes one JSON document, which must be an object. It throws the JSON library's own
// error, a std::exception, for a document that is not JSON or is nested 1,024 levels deep, for a
// required key that is missing or null, and for a value of the wrong JSON type. The error is an
// OpenMapRelease::Located too if the place is known. Where memory is missing it is std::bad_alloc.
// Any thread.
//
// - `schemaVersion` is an integer of 64 bits; 1.0 and 1e0 are of the wrong type.
// - Coordinates are any JSON numbers, of which the library refuses integers beyond 64 bits and
//   numbers that no double holds.
// - A position that has not two numbers is read as {NaN, NaN}, which JSON cannot express, so that
//   ReleaseRules refuses it in its turn.
// - Of a repeated key only the last value counts; the others only have to be JSON.
// - Unknown keys are skipped.

#include "data/OpenMapRelease.h"

#include <optional>
#include <stop_token>
#include <string>
#include <string_view>

namespace vasker {

[[nodiscard]] OpenMapRelease readRelease(std::string_view json);
[[nodiscard]] OpenMapRelease::Source readSource(std::string_view json);
[[nodiscard]] OpenMapRelease::Asset readAsset(std::string_view json);
[[nodiscard]] OpenMapRelease::Fact readFact(std::string_view json);

struct ReleaseReading {
    OpenMapRelease release;
    /// The place of the first unknown key, such as "assets[3].facts[0].unit", in this order: the
    /// keys of the root, those of each source, those of each asset followed by those of its facts.
    std::optional<std::string> firstUnknownKey;
};

/// Reads a release and looks for unknown keys. `json` is read in place if it has the capacity of
/// withJSONPadding(), and is freed at the end. Throws Cancelled if `stop` asks to stop.
[[nodiscard]] ReleaseReading readReleaseAndKeys(std::string json, const std::stop_token& stop = {});

/// Returns a copy of `json` with capacity for the bytes that the JSON library may read after it.
[[nodiscard]] std::string withJSONPadding(std::string_view json);

} // namespace vasker
