#pragma once
// The refusal of a file that is to be packed.

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vasker {

/// An input file says something that cannot be packed; what() is "FILE:LINE: MESSAGE", or
/// "FILE: MESSAGE" where no line can be named.
class InputError final : public std::runtime_error {
  public:
    InputError(std::string_view file, std::size_t line, std::string_view message)
        : std::runtime_error(std::string(file) + ":" + std::to_string(line) + ": " +
                             std::string(message)) {}
    InputError(std::string_view file, std::string_view message)
        : std::runtime_error(std::string(file) + ": " + std::string(message)) {}
};

} // namespace vasker
