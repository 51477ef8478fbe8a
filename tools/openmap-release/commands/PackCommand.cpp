#include "data/Digest.h"
#include "data/InternetDateTime.h"
#include "data/ReleaseWriter.h"
#include "tools/openmap-release/FileAccess.h"
#include "tools/openmap-release/commands/Command.h"
#include "tools/openmap-release/packing/Packing.h"
#include "tools/openmap-release/packing/tables/InputError.h"
#include "tools/openmap-release/packing/tables/JsonFiles.h"

#include <array>
#include <filesystem>
#include <system_error>

namespace vasker {
namespace {

constexpr std::string_view digestKey = "VaskerOpenMapSHA256";

/// The bundle information as it stands, an empty object where there is no such file yet.
std::string readInformation(const std::string& path) {
    constexpr std::size_t ampleForInformation = 1U << 20U;
    std::error_code error;
    if (std::filesystem::status(path, error).type() == std::filesystem::file_type::not_found) {
        return "{}\n";
    }
    return readFile(path, ampleForInformation);
}

CommandResult refused(const std::string& reason) {
    return {ExitStatus::refused, "", reason + "\n"};
}

CommandResult runPack(const Arguments& arguments) {
    arguments.refuseOperands();
    const std::string folder = arguments.requiredValue("--input");
    const std::string output = arguments.requiredValue("--output");
    const std::string information = arguments.requiredValue("--information");
    const std::string generatedAt = arguments.requiredValue("--generated-at");
    if (!isInternetDateTime(generatedAt)) {
        throw UsageError("--generated-at: \"" + generatedAt +
                         "\" is not a time such as 2026-11-21T00:00:00Z");
    }
    if (std::filesystem::weakly_canonical(output) ==
        std::filesystem::weakly_canonical(information)) {
        throw UsageError("--output and --information name the same file");
    }
    try {
        const Packed packed = packRelease(readPackInput(folder), generatedAt);
        const std::string release = encode(packed.release);
        const std::string digest = sha256(release);
        const std::string edited =
            withTextValue(information, readInformation(information), digestKey, digest);
        static_cast<void>(OpenMapRelease::decode(release, digest));
        writeFiles(std::array{FileContent{output, release}, FileContent{information, edited}});
        CommandResult result{ExitStatus::ok, reportText(packed.tally), ""};
        result.output += "packed  " + std::to_string(packed.release.assets.size()) + " records, " +
                         std::to_string(release.size()) + " bytes, SHA-256 " + digest + "\n";
        return result;
    } catch (const InputError& error) {
        return refused(error.what());
    } catch (const OpenMapRelease::Refusal& refusal) {
        return refused("the packed release would be refused: " + refusal.place());
    }
}

} // namespace

Command packCommand() {
    return {
        "pack",
        "make a release from the published datasets",
        "pack --input DIR --output FILE --information FILE --generated-at TIME",
        "Makes a release from the dataset files in DIR and writes it to the output file, and its\n"
        "SHA-256 digest under \"VaskerOpenMapSHA256\" into the information file, whose other\n"
        "values stay as they are. Both files are written, or neither. Tells what was taken,\n"
        "merged and dropped. The same files and time give the same release.\n"
        "\n"
        "  --input DIR          the folder with the dataset files, see docs/data.md\n"
        "  --output FILE        the release, OpenMap.json\n"
        "  --information FILE   the bundle information, a JSON object; made where there is none\n"
        "  --generated-at TIME  the time of packaging, such as 2026-11-21T00:00:00Z\n"
        "\n"
        "Exit status: 0 done; 1 a dataset file cannot be packed, told as FILE:LINE: MESSAGE;\n"
        "2 wrong usage, unreadable or unwritable file.\n",
        {{"--input"}, {"--output"}, {"--information"}, {"--generated-at"}},
        runPack};
}

} // namespace vasker
