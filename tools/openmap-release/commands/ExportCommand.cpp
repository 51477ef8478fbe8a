#include "tools/openmap-release/commands/ExportCommand.h"

#include "data/Classification.h"
#include "data/export/CsvExport.h"
#include "data/export/GeoJsonExport.h"
#include "tools/openmap-release/FileAccess.h"
#include "tools/openmap-release/Suggestion.h"
#include "tools/openmap-release/commands/PackagedRelease.h"

#include <simdjson.h>

#include <array>

namespace vasker {
namespace {

using Export = decltype(&exportCsv);

Export exportNamed(const std::string& format) {
    constexpr std::array<std::string_view, 2> known{"csv", "geojson"};
    if (format == "csv") {
        return exportCsv;
    }
    if (format == "geojson") {
        return exportGeoJson;
    }
    throw UsageError("--format: \"" + format + "\" is neither csv nor geojson" +
                     suggestion(format, known));
}

/// What the option says, as text that may stand in the file.
std::string
utf8Value(const Arguments& arguments, std::string_view option, std::string_view otherwise) {
    std::string text = arguments.value(option).value_or(std::string(otherwise));
    if (!simdjson::validate_utf8(text)) {
        throw UsageError(std::string(option) + ": the text is not UTF-8");
    }
    return text;
}

CommandResult runExport(const Arguments& arguments) {
    const std::string file = arguments.onlyOperand("FILE");
    const Export write = exportNamed(arguments.requiredValue("--format"));
    const std::string query = utf8Value(arguments, "--query", "");
    const std::string kind = utf8Value(arguments, "--kind", "all");
    const auto [release, digest] = openRelease(file);
    const ExportHeader header{release.releaseID, digest, query, kind};
    std::string text;
    const ExportOutcome outcome =
        write(release,
              filtered(release, header.query, header.filter, TextLocale::fromEnvironment()),
              header,
              [&](std::string_view piece) {
                  text += piece;
                  return true;
              });
    if (outcome == ExportOutcome::tooLarge) {
        return {ExitStatus::failed,
                "",
                "the exported file would be larger than " +
                    std::to_string(maximumExportBytes >> 20U) + " MiB\n"};
    }
    const std::string output = arguments.value("--output").value_or(std::string(standardStream));
    if (output == standardStream) {
        return {ExitStatus::ok, std::move(text), unknownKindNote(release, header.filter)};
    }
    writeFiles(std::array{FileContent{output, text}});
    return {ExitStatus::ok, "", unknownKindNote(release, header.filter)};
}

} // namespace

Command exportCommand() {
    return {"export",
            "write the records that a search shows as CSV or GeoJSON",
            "export FILE --format csv|geojson [--query TEXT] [--kind KEY] [--output FILE]",
            "Writes the records that the viewer would show, in its order, with the period, the "
            "source,\n"
            "the licence and the attribution of each value. docs/data.md tells the columns and "
            "members.\n"
            "\n"
            "  --format FORMAT  csv: a row for each record and for each of its facts; geojson: a "
            "feature\n"
            "                   for each record\n"
            "  --query TEXT     the search text; without it every record passes\n"
            "  --kind KEY       the category key, \"all\" (every record) without it\n"
            "  --output FILE    the file to write; standard output without it and for \"-\"\n"
            "\n"
            "Letter case and name order follow the locale of the environment, as in \"list\". FILE "
            "\"-\"\n"
            "is standard input. An invalid file is refused as \"check\" does.\n"
            "\n"
            "Exit status: 0 done, 1 refused, 2 wrong usage, unreadable or unwritable file.\n",
            {{"--format"}, {"--query"}, {"--kind"}, {"--output"}},
            runExport};
}

} // namespace vasker
