#include "tools/openmap-release/commands/CheckCommand.h"

#include "tools/openmap-release/RoutesText.h"
#include "tools/openmap-release/commands/PackagedRelease.h"

#include <algorithm>
#include <cstddef>

namespace vasker {
namespace {

/// Records, records drawn as lines, sources, and the points of all lines.
std::string summary(const OpenMapRelease& release) {
    const auto routes = std::ranges::count_if(release.assets, &OpenMapRelease::Asset::hasRoute);
    std::size_t points = 0;
    for (const OpenMapRelease::Asset& asset : release.assets) {
        points += routePoints(asset);
    }
    return "ok: " + std::to_string(release.assets.size()) + " records, " + std::to_string(routes) +
           " routes, " + std::to_string(release.sources.size()) + " sources, " +
           std::to_string(points) + " route points\n";
}

CommandResult runCheck(const Arguments& arguments) {
    const auto explanation = arguments.has("--explain") ? Explanation::place : Explanation::none;
    const PackagedRelease opened =
        openRelease(arguments.onlyOperand("FILE"), arguments.value("--sha256"), explanation);
    return {ExitStatus::ok, summary(opened.release), ""};
}

} // namespace

Command checkCommand() {
    return {
        "check",
        "tell whether a release file is valid",
        "check FILE [--sha256 HEX] [--explain]",
        "Tells whether the viewer would open FILE.\n"
        "\n"
        "A valid file gives one line, \"ok: N records, R routes, S sources, P route points\".\n"
        "R counts the records that are drawn as lines, as the viewer does.\n"
        "A refused file gives one word on standard output (oversized, checksum, schema, records,\n"
        "provenance, coordinates, or decoding where the JSON library refuses it) and the\n"
        "description that the viewer would show on standard error.\n"
        "\n"
        "  --sha256 HEX  the digest that FILE must have, compared as it stands with 64 lower-case\n"
        "                digits; without it FILE's own digest is taken\n"
        "  --explain     also tell which rule failed, and where\n"
        "\n"
        "Exit status: 0 valid, 1 refused, 2 wrong usage or unreadable file.\n",
        {{"--sha256"}, {"--explain", OptionShape::Takes::nothing}},
        runCheck};
}

} // namespace vasker
