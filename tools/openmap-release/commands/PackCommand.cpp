#include "tools/openmap-release/commands/PackCommand.h"

#include "data/Digest.h"
#include "data/InternetDateTime.h"
#include "data/ReleaseWriter.h"
#include "tools/openmap-release/FileAccess.h"
#include "tools/openmap-release/packing/Packing.h"
#include "tools/openmap-release/packing/TextValue.h"
#include "tools/openmap-release/packing/tables/Cells.h"
#include "tools/openmap-release/packing/tables/InputError.h"

#include <algorithm>
#include <filesystem>
#include <optional>
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

/// How many facilities each rule of the categories took.
std::string ruleReport(const Packed& packed, const KindRules& rules) {
    std::string text;
    for (std::size_t number = 1; number <= rules.size(); ++number) {
        std::string line = "rule " + std::to_string(number);
        const std::string count = grouped(packed.recordsByRule[number - 1]);
        line.resize(std::max(line.size(), 15 - std::min<std::size_t>(count.size(), 14)), ' ');
        text += line + count + "  " + rules.rule(number)->kind + "\n";
    }
    return text;
}

struct PackOptions {
    std::string folder;
    std::string description;
    std::string output;
    std::optional<std::string> information;
    std::string generatedAt;
};

PackOptions optionsOf(const Arguments& arguments) {
    arguments.refuseOperands();
    PackOptions options;
    options.folder = arguments.requiredValue("--input");
    options.description =
        arguments.value("--description").value_or(options.folder + "/description.toml");
    options.output = arguments.requiredValue("--output");
    options.information = arguments.value("--information");
    options.generatedAt = arguments.requiredValue("--generated-at");
    if (!isInternetDateTime(options.generatedAt)) {
        throw UsageError("--generated-at: \"" + options.generatedAt +
                         "\" is not a time such as 2026-11-21T00:00:00Z");
    }
    if (options.information && std::filesystem::weakly_canonical(options.output) ==
                                   std::filesystem::weakly_canonical(*options.information)) {
        throw UsageError("--output and --information name the same file");
    }
    return options;
}

/// Writes the release and the information with its digest, or neither. A release for standard
/// output goes into the result, and the report to standard error.
CommandResult
written(const PackOptions& options, const std::string& release, const std::string& report) {
    std::vector<FileContent> files;
    std::string edited;
    if (options.information) {
        edited = withTextValue(*options.information,
                               readInformation(*options.information),
                               digestKey,
                               sha256(release));
        files.push_back({*options.information, edited});
    }
    if (options.output == standardStream) {
        writeFiles(files);
        return {ExitStatus::ok, release, report};
    }
    files.push_back({options.output, release});
    writeFiles(files);
    return {ExitStatus::ok, report, ""};
}

CommandResult runPack(const Arguments& arguments) {
    const PackOptions options = optionsOf(arguments);
    try {
        const PackInput input = readPackInput(options.folder, options.description);
        const Packed packed = packRelease(input, options.generatedAt);
        const std::string release = encode(packed.release);
        const std::string digest = sha256(release);
        static_cast<void>(OpenMapRelease::decode(release, digest));
        return written(options,
                       release,
                       packed.tally.report() + ruleReport(packed, input.description.categories) +
                           "packed  " + grouped(packed.release.assets.size()) + " records, " +
                           grouped(release.size()) + " bytes, SHA-256 " + digest + "\n");
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
        "make a release from the published tables",
        "pack --input DIR --output FILE --generated-at TIME [--description FILE]\n"
        "                            [--information FILE]",
        "Makes a release from the tables in DIR and writes it to the output file, and its SHA-256\n"
        "digest under \"VaskerOpenMapSHA256\" into the information file, whose other values stay "
        "as\n"
        "they are. Both files are written, or neither. Tells what was taken, joined, dropped and\n"
        "corrected, and how many records each rule of the categories took. The same files and "
        "time\n"
        "give the same release.\n"
        "\n"
        "  --input DIR          the folder with the tables, see docs/data.md\n"
        "  --description FILE   what is known of them, a TOML file; DIR/description.toml without "
        "it\n"
        "  --output FILE        the release, OpenMap.json; \"-\": standard output, and the report\n"
        "                       goes to standard error\n"
        "  --information FILE   the bundle information, a JSON object; made where there is none\n"
        "  --generated-at TIME  the time of packaging, such as 2026-11-21T00:00:00Z\n"
        "\n"
        "Exit status: 0 done; 1 a file cannot be packed, told as FILE:LINE: MESSAGE; 2 wrong "
        "usage,\n"
        "unreadable or unwritable file.\n",
        {{"--input"}, {"--description"}, {"--output"}, {"--information"}, {"--generated-at"}},
        runPack};
}

} // namespace vasker
