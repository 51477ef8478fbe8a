#pragma once
// The JSON that packing reads: route files (GeoJSON) and the bundle information. The only door to
// the JSON library here.

#include "data/OpenMapRelease.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

/// The lines of one route file.
struct RouteFile {
    std::vector<OpenMapRelease::Route> routes; ///< every published line, six decimals
    std::size_t strayPoints = 0;               ///< point features, which are left out
    std::size_t loneVertices = 0;              ///< lines of fewer than two vertices, left out
    std::size_t thirdCoordinates = 0;          ///< vertices whose third coordinate was left out
};

/// Reads a GeoJSON feature collection of lines, multi-lines and points; a feature without geometry
/// is passed over. Throws InputError, which names `file`, for anything else.
[[nodiscard]] RouteFile readRouteFile(std::string_view file, std::string_view json);

/// The JSON object `json` with `value` under `key`: the former value is replaced, or the key is
/// added at the end. All else stays as it stands, byte for byte. `key` and `value` hold no
/// character that JSON escapes. Throws InputError, which names `file`, where `json` is no object.
[[nodiscard]] std::string withTextValue(std::string_view file,
                                        std::string_view json,
                                        std::string_view key,
                                        std::string_view value);

} // namespace vasker
