#pragma once
// A release file as the commands open it, and how a refusal is told.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/commands/Command.h"

#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace vasker {

/// Whether a refusal also tells its place.
enum class Explanation { none, place };

struct PackagedRelease {
    OpenMapRelease release;
    std::string digest; ///< the SHA-256 of the file
};

/// The file is refused; `result` is all that the command says: the case on standard output, the
/// description on standard error, status `refused`. main() prints it.
struct RefusedRelease final : std::exception {
    explicit RefusedRelease(CommandResult said) : result(std::move(said)) {}
    CommandResult result;
};

/// The release in the file at `path`, of standard input for "-"; `expectedSHA256` is used as it
/// stands, the file's own digest where there is none. Throws RefusedRelease and FileError.
[[nodiscard]] PackagedRelease
openRelease(const std::string& path,
            const std::optional<std::string>& expectedSHA256 = std::nullopt,
            Explanation explanation = Explanation::none);

/// A line for standard error where no record of `release` has the category key `kind`, with the key
/// that may be meant; empty where one has it, and for "all".
[[nodiscard]] std::string unknownKindNote(const OpenMapRelease& release, std::string_view kind);

} // namespace vasker
