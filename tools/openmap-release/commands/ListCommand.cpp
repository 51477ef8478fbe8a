#include "tools/openmap-release/commands/ListCommand.h"

#include "data/Classification.h"
#include "tools/openmap-release/commands/PackagedRelease.h"

namespace vasker {
namespace {

CommandResult runList(const Arguments& arguments) {
    const OpenMapRelease release = openRelease(arguments.onlyOperand("FILE")).release;
    const std::string kind = arguments.value("--kind").value_or("all");
    CommandResult result{ExitStatus::ok, "", unknownKindNote(release, kind)};
    for (const AssetIndex place : filtered(release,
                                           arguments.value("--query").value_or(""),
                                           kind,
                                           TextLocale::fromEnvironment())) {
        result.output += release.assets[place].id;
        result.output += '\n';
    }
    return result;
}

} // namespace

Command listCommand() {
    return {"list",
            "print the ids of the records that a search shows",
            "list FILE [--query TEXT] [--kind KEY]",
            "Prints the ids of the records that the viewer would show, one a line, in its order.\n"
            "\n"
            "  --query TEXT  the search text; without it every record passes\n"
            "  --kind KEY    the category key, \"all\" (every record) without it\n"
            "\n"
            "Letter case and name order follow the locale of the environment (LC_ALL, LC_COLLATE,\n"
            "LANG); C and POSIX mean English. An invalid file is refused as \"check\" does.\n"
            "\n"
            "Exit status: 0 done, 1 refused, 2 wrong usage or unreadable file.\n",
            {{"--query"}, {"--kind"}},
            runList};
}

} // namespace vasker
