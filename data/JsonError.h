#pragma once
// What the JSON library says of a text that is no JSON, or has other values than were asked for.

#include <cstring>
#include <exception>

namespace vasker {

class JsonError : public std::exception {
  public:
    /// `text` is one of the library's own, which stay. In newer versions they begin with the name
    /// of the error and a colon; what() leaves these out.
    explicit JsonError(const char* text) noexcept : m_text(text) {
        text += std::strspn(text, "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_");
        if (std::strncmp(text, ": ", 2) == 0) {
            m_text = text + 2;
        }
    }
    [[nodiscard]] const char* what() const noexcept override { return m_text; }

  private:
    const char* m_text;
};

} // namespace vasker
