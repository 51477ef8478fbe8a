#include "tools/openmap-release/commands/DiffCommand.h"

#include "tools/openmap-release/FileAccess.h"
#include "tools/openmap-release/commands/PackagedRelease.h"
#include "tools/openmap-release/comparison/ComparisonText.h"

namespace vasker {
namespace {

CommandResult runDiff(const Arguments& arguments) {
    const std::vector<std::string> files = arguments.operands({"OLD", "NEW"});
    if (files[0] == standardStream && files[1] == standardStream) {
        throw UsageError("only one of both releases can come from standard input");
    }
    std::vector<OpenMapRelease> releases;
    for (const std::string& file : files) {
        try {
            releases.push_back(openRelease(file).release);
        } catch (RefusedRelease& refused) {
            refused.result.errors = file + ": " + refused.result.errors;
            throw;
        }
    }
    const ReleaseComparison comparison = compare(releases[0], releases[1]);
    return {ExitStatus::ok,
            arguments.has("--json") ? comparisonJson(comparison) : comparisonText(comparison),
            ""};
}

} // namespace

Command diffCommand() {
    return {"diff",
            "tell what changed from one release to the next",
            "diff OLD NEW [--json]",
            "Tells by source which records came, went and moved, and which of their values "
            "changed: the\n"
            "release note of a data release. Long lists are cut; --json has every change.\n"
            "\n"
            "  --json  one JSON object instead of text\n"
            "\n"
            "One of both files may be \"-\", standard input. An invalid file is refused as "
            "\"check\" does.\n"
            "\n"
            "Exit status: 0 compared, whether they differ or not; 1 refused; 2 wrong usage or "
            "unreadable\n"
            "file.\n",
            {{"--json", OptionShape::Takes::nothing}},
            runDiff};
}

} // namespace vasker
