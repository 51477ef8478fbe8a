#include "tools/openmap-release/commands/ShowCommand.h"

#include "data/ReleaseWriter.h"
#include "data/export/NumberText.h"
#include "tools/openmap-release/PrintedText.h"
#include "tools/openmap-release/RoutesText.h"
#include "tools/openmap-release/Suggestion.h"
#include "tools/openmap-release/commands/PackagedRelease.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace vasker {
namespace {

/// The record as the viewer shows it: its fields, its facts, the sources that they cite.
std::string described(const OpenMapRelease& release, const OpenMapRelease::Asset& record) {
    const auto line = [](const std::string& label, const std::string& value) {
        return value.empty() ? std::string() : label + ": " + printedText(value) + "\n";
    };
    std::string text = printedText(record.name) + "\n";
    text += line("ID", record.id);
    text += line("Category", record.category() + " (" + record.kind + ")");
    text += line("Jurisdiction", record.jurisdiction);
    text += line("Status", record.status);
    text += line("Source period", record.asOf);
    text += line("Reporting company", record.reportedCompany.value_or(""));
    text += line("Position", numberText(record.latitude) + ", " + numberText(record.longitude));
    text += line("Routes", record.hasRoute() ? routesText(record) : "");
    std::set<std::string_view> cited{record.sourceID};
    text += record.facts.empty() ? "" : "\n";
    for (const OpenMapRelease::Fact& fact : record.facts) {
        cited.insert(fact.sourceID);
        text += printedText(fact.label + ": " + fact.value + " (" + fact.asOf + ", " +
                            std::string(release.source(fact.sourceID)->shortName()) + ")") +
                "\n";
    }
    // Several tables of one publication are credited alike.
    std::set<std::string> credits;
    for (const OpenMapRelease::Source& source : release.sources) {
        const std::string credit = printedText(std::string(source.shortName()) + ": " +
                                               source.publisher + ", " + source.sourceURL) +
                                   "\n" +
                                   printedText(source.attribution + " " + source.licenceURL) + "\n";
        if (cited.contains(source.id) && credits.insert(credit).second) {
            text += "\n" + credit;
        }
    }
    return text;
}

CommandResult unknownRecord(const OpenMapRelease& release, const std::string& id) {
    std::vector<std::string_view> known;
    std::ranges::transform(release.assets, std::back_inserter(known), &OpenMapRelease::Asset::id);
    return {ExitStatus::refused, "", id + ": no such record" + suggestion(id, known) + "\n"};
}

CommandResult runShow(const Arguments& arguments) {
    const std::vector<std::string> operands = arguments.operands({"FILE", "ID"});
    const OpenMapRelease release = openRelease(operands[0]).release;
    const auto record = std::ranges::find(release.assets, operands[1], &OpenMapRelease::Asset::id);
    if (record == release.assets.end()) {
        return unknownRecord(release, operands[1]);
    }
    return {ExitStatus::ok,
            arguments.has("--json") ? encode(*record) + "\n" : described(release, *record),
            ""};
}

} // namespace

Command showCommand() {
    return {
        "show",
        "print one record",
        "show FILE ID [--json]",
        "Prints the record of FILE with the id ID: its fields, its facts with their periods and\n"
        "sources, and who published them. FILE \"-\" is standard input.\n"
        "\n"
        "  --json  the record as it stands in the release file\n"
        "\n"
        "Exit status: 0 done; 1 no such record, or refused as \"check\" does; 2 wrong usage or\n"
        "unreadable file.\n",
        {{"--json", OptionShape::Takes::nothing}},
        runShow};
}

} // namespace vasker
