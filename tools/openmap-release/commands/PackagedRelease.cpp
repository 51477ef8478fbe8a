#include "tools/openmap-release/commands/PackagedRelease.h"

#include "data/Classification.h"
#include "data/Digest.h"
#include "tools/openmap-release/FileAccess.h"
#include "tools/openmap-release/Suggestion.h"
#include "tools/openmap-release/commands/JsonFault.h"

#include <algorithm>
#include <exception>
#include <string_view>
#include <utility>
#include <vector>

namespace vasker {
namespace {

std::string_view caseName(OpenMapRelease::Invalid invalid) {
    switch (invalid) {
    case OpenMapRelease::Invalid::oversized:
        return "oversized";
    case OpenMapRelease::Invalid::checksum:
        return "checksum";
    case OpenMapRelease::Invalid::schema:
        return "schema";
    case OpenMapRelease::Invalid::records:
        return "records";
    case OpenMapRelease::Invalid::provenance:
        return "provenance";
    case OpenMapRelease::Invalid::coordinates:
        return "coordinates";
    }
    return "";
}

CommandResult refused(std::string_view name, const std::exception& error) {
    return {ExitStatus::refused, std::string(name) + "\n", std::string(error.what()) + "\n"};
}

/// Where a value has the wrong type, or where the text stops being JSON; empty where neither is
/// known.
std::string explained(const std::exception& error, std::string_view bytes) {
    const auto* located = dynamic_cast<const OpenMapRelease::Located*>(&error);
    if (located != nullptr && !located->place().empty()) {
        return located->place() + "\n";
    }
    if (bytes.starts_with("\xEF\xBB\xBF")) {
        return "line 1, column 1: a byte order mark\n";
    }
    if (const std::optional<std::string> fault = jsonFault(bytes)) {
        return *fault + "\n";
    }
    return located != nullptr ? "line 1, column 1: no object\n" : "";
}

} // namespace

PackagedRelease openRelease(const std::string& path,
                            const std::optional<std::string>& expectedSHA256,
                            Explanation explanation) {
    // One byte more than is accepted is enough to see that a file is too long.
    const std::string bytes = readFile(path, OpenMapRelease::maximumFileSize + 1);
    const bool isTooLong = bytes.size() > OpenMapRelease::maximumFileSize;
    const std::string digest = isTooLong ? std::string() : sha256(bytes);
    CommandResult result;
    try {
        return {OpenMapRelease::decode(bytes, expectedSHA256.value_or(digest)), digest};
    } catch (const OpenMapRelease::Refusal& refusal) {
        result = refused(caseName(refusal.invalid()), refusal);
        if (explanation == Explanation::place) {
            result.errors += refusal.place().empty() ? "" : refusal.place() + "\n";
        }
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& error) {
        result = refused("decoding", error);
        if (explanation == Explanation::place) {
            result.errors += explained(error, bytes);
        }
    }
    throw RefusedRelease(std::move(result));
}

std::string unknownKindNote(const OpenMapRelease& release, std::string_view kind) {
    const std::vector<std::string> known = kinds(release);
    if (kind == "all" || std::ranges::find(known, kind) != known.end()) {
        return "";
    }
    const std::vector<std::string_view> names(known.begin(), known.end());
    return "no record is of the kind " + std::string(kind) + suggestion(kind, names) + "\n";
}

} // namespace vasker
