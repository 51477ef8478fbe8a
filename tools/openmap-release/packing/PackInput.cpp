#include "tools/openmap-release/packing/PackInput.h"

#include "tools/openmap-release/FileAccess.h"
#include "tools/openmap-release/packing/tables/InputError.h"

#include <filesystem>
#include <system_error>

namespace vasker {
namespace {

// Far above any of these files; keeps a wrong path (a device, a dump) from filling the memory.
constexpr std::size_t largestInput = 64U << 20U;
constexpr std::size_t largestDescription = 1U << 20U;

std::string readBounded(const std::string& path, std::size_t limit) {
    std::string bytes = readFile(path, limit + 1);
    if (bytes.size() > limit) {
        throw InputError(path, "larger than " + std::to_string(limit >> 20U) + " MiB");
    }
    return bytes;
}

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
            routes.emplace(path.stem().string(), readBounded(path.string(), largestInput));
        }
    }
    return routes;
}

} // namespace

PackInput readPackInput(const std::string& folder, const std::string& description) {
    PackInput input;
    input.description = readDescription(std::filesystem::path(description).filename().string(),
                                        readBounded(description, largestDescription));
    for (const auto& [role, table] : input.description.tables) {
        input.tables.emplace(role, readBounded(folder + "/" + table.file, largestInput));
        if (!table.routes.empty()) {
            input.routes.emplace(role, readRoutes(folder + "/" + table.routes));
        }
    }
    return input;
}

} // namespace vasker
