#pragma once
// Databases of any content: bytes are those of a file of SQLite, or else statements that make one.

#include <string>
#include <string_view>

namespace vasker {

/// Makes such a file at `path`, where there must be none. Statements work on this file alone and
/// end after a while.
void makeForeignDatabase(const std::string& path, std::string_view bytes);

} // namespace vasker
