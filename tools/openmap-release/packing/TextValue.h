#pragma once
// One text of a JSON file replaced, as for the digest in the bundle information.

#include <string>
#include <string_view>

namespace vasker {

/// The JSON object `json` with `value` under `key`: the former value is replaced, or the key is
/// added at the end. All else stays as it stands, byte for byte. `key` and `value` hold no
/// character that JSON escapes. Throws InputError, which names `file`, where `json` is no object.
[[nodiscard]] std::string withTextValue(std::string_view file,
                                        std::string_view json,
                                        std::string_view key,
                                        std::string_view value);

} // namespace vasker
