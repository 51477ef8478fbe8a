#include "tools/openmap-release/commands/SynthesizeCommand.h"

#include "tools/openmap-release/FileAccess.h"
#include "tools/openmap-release/Synthesis.h"

#include <array>

namespace vasker {
namespace {

CommandResult runSynthesize(const Arguments& arguments) {
    arguments.refuseOperands();
    const SynthesisOptions options{arguments.requiredNumber("--records"),
                                   arguments.requiredNumber("--route-points"),
                                   arguments.requiredNumber("--bytes"),
                                   arguments.requiredNumber("--seed")};
    const std::string output = arguments.requiredValue("--output");
    try {
        std::string file = synthesizeFile(options);
        if (output == standardStream) {
            return {ExitStatus::ok, std::move(file), ""};
        }
        writeFiles(std::array{FileContent{output, file}});
    } catch (const ImpossibleSynthesis& impossible) {
        throw UsageError(impossible.what());
    }
    return {};
}

} // namespace

Command synthesizeCommand() {
    return {
        "synthesize",
        "write an invented release of a given size",
        "synthesize --records N --route-points M --bytes B --seed S --output FILE",
        "Writes a valid release of invented records, for tests and measurements. The same numbers\n"
        "give the same bytes.\n"
        "\n"
        "  --records N       1 to 10000 records, about one in ten of them a pipeline\n"
        "  --route-points M  the points of all lines together: 0, or 2 to 300000\n"
        "  --bytes B         the length of the file, at most 15000000; 0: as it comes\n"
        "  --seed S          which of the many releases of this size\n"
        "  --output FILE     the file to write; \"-\": standard output\n"
        "\n"
        "Exit status: 0 done, 2 wrong usage, impossible numbers or unwritable file.\n",
        {{"--records"}, {"--route-points"}, {"--bytes"}, {"--seed"}, {"--output"}},
        runSynthesize};
}

} // namespace vasker
