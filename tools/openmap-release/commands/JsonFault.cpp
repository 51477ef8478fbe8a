#include "tools/openmap-release/commands/JsonFault.h"

#include "tools/openmap-release/PrintedText.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <utility>

namespace vasker {
namespace {

constexpr std::size_t longestMessage = 200;

/// What the parser says of the first fault; empty for none. Nothing of the text is kept.
std::string parserMessage(std::string_view text) {
    using Json = nlohmann::json;
    try {
        [[maybe_unused]] const Json nothing = Json::parse(
            text, [](int /*depth*/, Json::parse_event_t /*event*/, Json&) { return false; });
    } catch (const Json::exception& error) {
        return error.what();
    }
    return "";
}

} // namespace

std::optional<std::string> jsonFault(std::string_view text) {
    std::string message = parserMessage(text);
    if (message.empty()) {
        return std::nullopt;
    }
    // "[json.exception.parse_error.101] parse error at line 3, column 14: what is wrong"
    const std::size_t place = message.find("line ");
    message.erase(0, std::min(place, message.size()));
    std::ranges::replace(message, '\n', ' ');
    return shortenedText(std::move(message), longestMessage, "...");
}

} // namespace vasker
