#include "tools/openmap-release/commands/KindsCommand.h"

#include "data/Classification.h"
#include "tools/openmap-release/commands/PackagedRelease.h"

namespace vasker {
namespace {

CommandResult runKinds(const Arguments& arguments) {
    const OpenMapRelease release = openRelease(arguments.onlyOperand("FILE")).release;
    CommandResult result;
    for (const std::string& kind : kinds(release)) {
        result.output += kind + "\t" + OpenMapRelease::Asset::categoryLabel(kind) + "\n";
    }
    return result;
}

} // namespace

Command kindsCommand() {
    return {
        "kinds",
        "print the categories of a release",
        "kinds FILE",
        "Prints each category key of FILE and its label, separated by a tab, one a line, in the\n"
        "viewer's order. An invalid file is refused as \"check\" does.\n"
        "\n"
        "Exit status: 0 done, 1 refused, 2 wrong usage or unreadable file.\n",
        {},
        runKinds};
}

} // namespace vasker
