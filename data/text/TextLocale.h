#pragma once
// The user's language and region, as far as texts are compared by them.

#include <string>
#include <string_view>

namespace vasker {

class TextLocale {
  public:
    /// Makes a locale from an id such as "fr_CA" or "tr". An encoding and a modifier behind it are
    /// ignored; "C", "POSIX" and the empty text mean English.
    explicit TextLocale(std::string_view id);

    /// Returns the locale of the environment: the first of LC_ALL, LC_COLLATE and LANG that is set
    /// and not empty. The locale need not be installed and the C library's locale is not changed.
    /// ICU compares by its root rules if it does not know the locale.
    [[nodiscard]] static TextLocale fromEnvironment();

    [[nodiscard]] const std::string& id() const noexcept { return m_id; }

    /// Returns whether letters have the case pairs of Turkish and Azerbaijani: I and dotless i,
    /// dotted I and i.
    [[nodiscard]] bool hasDotlessI() const noexcept { return m_hasDotlessI; }

  private:
    std::string m_id;
    bool m_hasDotlessI = false;
};

} // namespace vasker
