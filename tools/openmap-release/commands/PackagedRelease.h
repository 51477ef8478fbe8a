#pragma once
// A release file as the commands open it, and how a refusal is told.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/commands/Command.h"

#include <optional>
#include <string>
#include <variant>

namespace vasker {

/// Whether a refusal also tells its place.
enum class Explanation { none, place };

/// The release in the file at `path`; `expectedSHA256` is used as it stands, the file's own digest
/// where there is none. A refusal is the command's whole result: the case on standard output, the
/// description on standard error, status `refused`. Throws FileError.
[[nodiscard]] std::variant<OpenMapRelease, CommandResult>
openRelease(const std::string& path,
            const std::optional<std::string>& expectedSHA256,
            Explanation explanation);

} // namespace vasker
