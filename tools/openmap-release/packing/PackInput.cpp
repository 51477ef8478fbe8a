#include "tools/openmap-release/FileAccess.h"
#include "tools/openmap-release/packing/Datasets.h"
#include "tools/openmap-release/packing/Packing.h"

#include <filesystem>
#include <system_error>

namespace vasker {
namespace {

// Far above any of these datasets; keeps a wrong path (a device, a dump) from filling the memory.
constexpr std::size_t largestInput = 512U << 20U;

std::map<std::string, std::string, std::less<>> readRoutes(const std::string& folder) {
    std::error_code error;
    std::filesystem::directory_iterator entries(folder, error);
    if (error) {
        throw FileError(folder, error.value());
    }
    std::map<std::string, std::string, std::less<>> routes;
    for (const std::filesystem::directory_entry& entry : entries) {
        const std::filesystem::path& path = entry.path();
        if (path.extension() == ".geojson") {
            routes.emplace(path.stem().string(), readFile(path.string(), largestInput));
        }
    }
    return routes;
}

} // namespace

PackInput readPackInput(const std::string& path) {
    const auto inFolder = [&](std::string_view file) { return path + "/" + std::string(file); };
    const auto read = [&](std::string_view file) { return readFile(inFolder(file), largestInput); };
    PackInput input;
    input.npriFacilities = read(inputfile::npriFacilities);
    input.npriLocations = read(inputfile::npriLocations);
    input.ghgrpFacilities = read(inputfile::ghgrpFacilities);
    input.ghgrpHistory = read(inputfile::ghgrpHistory);
    input.oilPipelines = read(inputfile::oilPipelines);
    input.gasPipelines = read(inputfile::gasPipelines);
    input.terminals = read(inputfile::terminals);
    input.routeIndex = read(inputfile::routeIndex);
    input.oilRoutes = readRoutes(inFolder(inputfile::oilRoutes));
    input.gasRoutes = readRoutes(inFolder(inputfile::gasRoutes));
    return input;
}

} // namespace vasker
