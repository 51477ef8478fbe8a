#include "data/text/TextLocale.h"

#include <unicode/locid.h>

#include <cstdlib>

namespace vasker {

TextLocale::TextLocale(std::string_view id) : m_id(id.substr(0, id.find_first_of(".@"))) {
    if (m_id.empty() || m_id == "C" || m_id == "POSIX") {
        m_id = "en";
    }
    const icu::Locale locale(m_id.c_str());
    const std::string_view language = locale.getLanguage();
    m_hasDotlessI = language == "tr" || language == "az";
}

TextLocale TextLocale::fromEnvironment() {
    for (const char* const variable : {"LC_ALL", "LC_COLLATE", "LANG"}) {
        const char* const value = std::getenv(variable);
        if (value != nullptr && *value != '\0') {
            return TextLocale(value);
        }
    }
    return TextLocale("");
}

} // namespace vasker
