#pragma once
// The lines of a pipeline as a GeoJSON file tells them.

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

} // namespace vasker
