// Any bytes are the lines of a pipeline or are refused; what is accepted are lines that a release
// may hold.

#include "tools/openmap-release/packing/tables/InputError.h"
#include "tools/openmap-release/packing/tables/RouteFile.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    try {
        const vasker::RouteFile file = vasker::readRouteFile("r.geojson", bytes);
        for (const vasker::OpenMapRelease::Route& route : file.routes) {
            if (route.size() < 2) {
                std::abort();
            }
            for (const auto& [longitude, latitude] : route) {
                if (!(std::abs(longitude) <= 180) || !(std::abs(latitude) <= 90)) {
                    std::abort();
                }
            }
        }
    } catch (const vasker::InputError& error) {
        if (!std::string_view(error.what()).starts_with("r.geojson: ")) {
            std::abort();
        }
    }
    return 0;
}
