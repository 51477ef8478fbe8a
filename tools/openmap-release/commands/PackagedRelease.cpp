#include "tools/openmap-release/commands/PackagedRelease.h"

#include "data/Digest.h"
#include "tools/openmap-release/FileAccess.h"

#include <exception>
#include <string_view>
#include <utility>

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

CommandResult refused(std::string_view name, const std::exception& error, Explanation explanation) {
    CommandResult result{ExitStatus::refused, std::string(name) + "\n", error.what()};
    result.errors += '\n';
    const auto* located = dynamic_cast<const OpenMapRelease::Located*>(&error);
    if (explanation == Explanation::place && located != nullptr && !located->place().empty()) {
        result.errors += located->place() + "\n";
    }
    return result;
}

} // namespace

std::variant<OpenMapRelease, CommandResult>
openRelease(const std::string& path,
            const std::optional<std::string>& expectedSHA256,
            Explanation explanation) {
    // One byte more than is accepted is enough to see that a file is too long.
    const std::string bytes = readFile(path, OpenMapRelease::maximumFileSize + 1);
    const bool isTooLong = bytes.size() > OpenMapRelease::maximumFileSize;
    const std::string expected =
        expectedSHA256 ? *expectedSHA256 : (isTooLong ? std::string() : sha256(bytes));
    try {
        return OpenMapRelease::decode(bytes, expected);
    } catch (const OpenMapRelease::Refusal& refusal) {
        return refused(caseName(refusal.invalid()), refusal, explanation);
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& error) {
        return refused("decoding", error, explanation);
    }
}

} // namespace vasker
