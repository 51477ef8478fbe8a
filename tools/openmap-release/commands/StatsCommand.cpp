#include "tools/openmap-release/commands/StatsCommand.h"

#include "tools/openmap-release/PrintedText.h"
#include "tools/openmap-release/commands/PackagedRelease.h"
#include "tools/openmap-release/packing/tables/Cells.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>

namespace vasker {
namespace {

using Counts = std::vector<std::pair<std::string, std::size_t>>;

/// The records by what `key` says of them, the commonest first, then in the order of the release.
Counts counted(const OpenMapRelease& release,
               const std::function<std::string(const OpenMapRelease::Asset&)>& key) {
    Counts counts;
    for (const OpenMapRelease::Asset& record : release.assets) {
        const std::string group = key(record);
        const auto found =
            std::ranges::find(counts, group, &std::pair<std::string, std::size_t>::first);
        if (found == counts.end()) {
            counts.emplace_back(group, 1);
        } else {
            ++found->second;
        }
    }
    std::ranges::stable_sort(
        counts, std::ranges::greater(), &std::pair<std::string, std::size_t>::second);
    return counts;
}

struct Section {
    std::string_view name;
    Counts counts;
};

std::vector<Section> sectionsOf(const OpenMapRelease& release) {
    using Asset = OpenMapRelease::Asset;
    return {
        {"category", counted(release, [](const Asset& record) { return record.kind; })},
        {"jurisdiction", counted(release, [](const Asset& record) { return record.jurisdiction; })},
        {"source",
         counted(release,
                 [&](const Asset& record) {
                     return std::string(release.source(record.sourceID)->shortName());
                 })},
        {"period", counted(release, [](const Asset& record) { return record.asOf; })},
        {"status", counted(release, [](const Asset& record) { return record.status; })}};
}

std::string textOf(const OpenMapRelease& release) {
    std::string text = printedText(release.releaseID) + " of " + release.generatedAt + "\n" +
                       grouped(release.assets.size()) + " records\n";
    for (const Section& section : sectionsOf(release)) {
        text += "\nby " + std::string(section.name) + "\n";
        for (const auto& [group, count] : section.counts) {
            std::string number = grouped(count);
            number.insert(0, number.size() < 8 ? 8 - number.size() : 0, ' ');
            text += number + "  " + (group.empty() ? "(none)" : printedText(group)) + "\n";
        }
    }
    return text;
}

std::string jsonOf(const OpenMapRelease& release) {
    nlohmann::ordered_json object{{"release", release.releaseID},
                                  {"generatedAt", release.generatedAt},
                                  {"records", release.assets.size()}};
    for (const Section& section : sectionsOf(release)) {
        auto& counts = object[std::string(section.name)] = nlohmann::ordered_json::object();
        for (const auto& [group, count] : section.counts) {
            counts[group] = count;
        }
    }
    return object.dump(1) + "\n";
}

CommandResult runStats(const Arguments& arguments) {
    const OpenMapRelease release = openRelease(arguments.onlyOperand("FILE")).release;
    return {ExitStatus::ok, arguments.has("--json") ? jsonOf(release) : textOf(release), ""};
}

} // namespace

Command statsCommand() {
    return {
        "stats",
        "count the records of a release",
        "stats FILE [--json]",
        "Counts the records of FILE by category, jurisdiction, source, period and status. FILE\n"
        "\"-\" is standard input. An invalid file is refused as \"check\" does.\n"
        "\n"
        "  --json  one JSON object instead of text\n"
        "\n"
        "Exit status: 0 done, 1 refused, 2 wrong usage or unreadable file.\n",
        {{"--json", OptionShape::Takes::nothing}},
        runStats};
}

} // namespace vasker
