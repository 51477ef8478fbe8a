#pragma once
// A release file as the commands open it, and how a refusal is told.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/commands/Command.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vasker {

/// Whether a refusal also tells its place.
enum class Explanation { none, place };

struct PackagedRelease {
    OpenMapRelease release;
    std::string digest; ///< the SHA-256 of the file
};

/// The release in the file at `path`, of standard input for "-"; `expectedSHA256` is used as it
/// stands, the file's own digest where there is none. A refusal is the command's whole result: the
/// case on standard output, the description on standard error, status `refused`. Throws FileError.
[[nodiscard]] std::variant<PackagedRelease, CommandResult>
openRelease(const std::string& path,
            const std::optional<std::string>& expectedSHA256 = std::nullopt,
            Explanation explanation = Explanation::none);

/// A line for standard error where no record of `release` has the category key `kind`, with the key
/// that may be meant; empty where one has it, and for "all".
[[nodiscard]] std::string unknownKindNote(const OpenMapRelease& release, std::string_view kind);

} // namespace vasker
