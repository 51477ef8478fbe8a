#include "data/InternetDateTime.h"

#include <algorithm>
#include <chrono>

namespace vasker {

namespace {

/// Whether `text` has the shape of `pattern`, where 0 stands for any digit and - at `signAt` for
/// either sign.
bool hasShape(std::string_view text, std::string_view pattern, std::size_t signAt) {
    if (text.size() != pattern.size()) {
        return false;
    }
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char wanted = pattern[at];
        const bool fits = wanted == '0'  ? text[at] >= '0' && text[at] <= '9'
                          : at == signAt ? text[at] == '+' || text[at] == '-'
                                         : text[at] == wanted;
        if (!fits) {
            return false;
        }
    }
    return true;
}

int numberAt(std::string_view text, std::size_t begin, std::size_t length) {
    int number = 0;
    for (const char digit : text.substr(begin, length)) {
        number = number * 10 + (digit - '0');
    }
    return number;
}

bool isCalendarDay(std::string_view date) {
    using namespace std::chrono;
    return year_month_day(year(numberAt(date, 0, 4)),
                          month(static_cast<unsigned>(numberAt(date, 5, 2))),
                          day(static_cast<unsigned>(numberAt(date, 8, 2))))
        .ok();
}

/// `text` begins with hh:mm.
bool isHourAndMinute(std::string_view text) {
    return numberAt(text, 0, 2) <= 23 && numberAt(text, 3, 2) <= 59;
}

} // namespace

bool isInternetDateTime(std::string_view text) {
    constexpr std::string_view inUniversalTime = "0000-00-00T00:00:00Z";
    constexpr std::string_view withOffset = "0000-00-00T00:00:00-00:00";
    constexpr std::size_t zoneAt = inUniversalTime.size() - 1;

    const bool hasOffset = hasShape(text, withOffset, zoneAt);
    if (!hasOffset && !hasShape(text, inUniversalTime, std::string_view::npos)) {
        return false;
    }
    return isCalendarDay(text) && isHourAndMinute(text.substr(11)) && numberAt(text, 17, 2) <= 59 &&
           (!hasOffset || isHourAndMinute(text.substr(zoneAt + 1)));
}

} // namespace vasker
