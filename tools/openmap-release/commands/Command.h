#pragma once
// A subcommand as a value: what it is called, what it takes, what it does. Commands read files and
// return what to print; only main() touches the standard streams.

#include "tools/openmap-release/Arguments.h"

#include <string>
#include <string_view>
#include <vector>

namespace vasker {

/// The exit statuses of the tool.
enum class ExitStatus { ok = 0, refused = 1, failed = 2 };

struct CommandResult {
    ExitStatus status = ExitStatus::ok;
    std::string output; ///< for standard output, with its line ends
    std::string errors; ///< for standard error, with its line ends
};

struct Command {
    std::string_view name;
    std::string_view summary;  ///< one line for the tool's own help
    std::string_view synopsis; ///< what follows the tool's name
    std::string_view help;     ///< the text below the synopsis
    std::vector<OptionShape> options;
    /// May throw RefusedRelease, and UsageError and FileError, which main() reports with status
    /// `failed`.
    CommandResult (*run)(const Arguments&);
};

} // namespace vasker
