#pragma once
// Releases for tests: a small valid one to change one thing of, and files made from values.

#include "data/OpenMapRelease.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace vasker {

/// 64 digits, ending with `number` in decimal digits.
[[nodiscard]] std::string sourceID(std::size_t number = 0);

/// A valid source of the first dataset, with sourceID(number).
[[nodiscard]] OpenMapRelease::Source makeSource(std::size_t number = 0);
/// A valid fact that cites sourceID(0).
[[nodiscard]] OpenMapRelease::Fact makeFact(std::string value = "12.5 t");
/// A valid facility with the id "A-<number>" that cites sourceID(0).
[[nodiscard]] OpenMapRelease::Asset makeAsset(std::size_t number = 0);
/// `points` positions from west to east.
[[nodiscard]] OpenMapRelease::Route makeRoute(std::size_t points = 2);
/// A valid release: one source, a facility with one fact and a pipeline with one route.
[[nodiscard]] OpenMapRelease makeRelease();
/// Five records in file order: two namesakes, numbered names out of order, a pipeline without a
/// route.
[[nodiscard]] OpenMapRelease makeReleaseOfNamesakes();

/// `text` with its only occurrence of `from` replaced; throws if that is not the case.
[[nodiscard]] std::string replaced(std::string text, std::string_view from, std::string_view to);

/// The release in `json` by decode(), with the digest that fits.
[[nodiscard]] OpenMapRelease decoded(std::string_view json);

/// How loading ends: "ok", "<case>: <place>" of a refusal, or "decoding: <text>[ at <place>]" of an
/// error of the JSON library.
[[nodiscard]] std::string outcomeOf(std::string_view json);
[[nodiscard]] std::string outcomeOf(const OpenMapRelease& release);

/// The word that the packaging tool uses for the case.
[[nodiscard]] std::string_view nameOf(OpenMapRelease::Invalid invalid);

} // namespace vasker
