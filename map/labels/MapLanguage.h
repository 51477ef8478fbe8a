#pragma once
// Which name a label shows where a place has several.

#include <QString>

#include <cstdint>

namespace vasker {

enum class MapLanguage : std::uint8_t { english, french };

/// The language of labels for an application whose texts are in that of `locale`, as in "fr_CA".
[[nodiscard]] MapLanguage mapLanguage(const QString& locale);

} // namespace vasker
