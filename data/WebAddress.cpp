#include "data/WebAddress.h"

#include <uriparser/Uri.h>

#include <memory>

namespace vasker {

namespace {

std::string_view textOf(const UriTextRangeA& range) {
    return range.first == nullptr
               ? std::string_view()
               : std::string_view(range.first,
                                  static_cast<std::size_t>(range.afterLast - range.first));
}

} // namespace

bool secureURL(std::string_view text) {
    UriUriA url{};
    if (uriParseSingleUriExA(&url, text.data(), text.data() + text.size(), nullptr) !=
        URI_SUCCESS) {
        return false;
    }
    const std::unique_ptr<UriUriA, decltype(&uriFreeUriMembersA)> members(&url, uriFreeUriMembersA);
    const bool userIsAbsent = url.userInfo.first == nullptr;
    return textOf(url.scheme) == "https" && !textOf(url.hostText).empty() && userIsAbsent;
}

} // namespace vasker
