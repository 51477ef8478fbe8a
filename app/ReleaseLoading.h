#pragma once
// The work of the load task: from a file's path to a release that is ready for views, or to the
// reason why there is none. Any thread.

#include "map/records/RecordSet.h"

#include <memory>
#include <stop_token>
#include <string>
#include <variant>

namespace vasker {

/// The user-facing description of a failure: a refusal's message, the operating system's own words
/// for a file that cannot be read and for missing memory, the JSON library's for a file it cannot
/// decode.
struct LoadFailure {
    std::string description;
    friend bool operator==(const LoadFailure&, const LoadFailure&) = default;
};

using LoadOutcome = std::variant<std::shared_ptr<const LoadedRelease>, LoadFailure>;

/// Reads the file at `path` whole and decodes it against `expectedSHA256`. Where somebody holds a
/// release that equals the one in the file, returns that. Ends early, with a failure that nobody
/// needs, if `stop` asks to stop.
[[nodiscard]] LoadOutcome loadRelease(const std::string& path,
                                      const std::string& expectedSHA256,
                                      const TextLocale& locale,
                                      const std::stop_token& stop = {});

} // namespace vasker
