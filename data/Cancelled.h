#pragma once
// How a long operation of the kit ends when its caller no longer needs the result.

#include <exception>
#include <stop_token>

namespace vasker {

/// Thrown by an operation that was given a stop token, after the token asked it to stop.
class Cancelled final : public std::exception {
  public:
    [[nodiscard]] const char* what() const noexcept override {
        return "The operation was cancelled.";
    }
};

/// Throws Cancelled if `stop` asks to stop.
inline void throwIfCancelled(const std::stop_token& stop) {
    if (stop.stop_requested()) {
        throw Cancelled();
    }
}

} // namespace vasker
