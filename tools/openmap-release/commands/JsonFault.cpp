#include "tools/openmap-release/commands/JsonFault.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace vasker {
namespace {

using Json = nlohmann::json;

constexpr std::size_t longestMessage = 200;

/// Listens to a reading of JSON for its fault alone.
class FaultListener final : public nlohmann::json_sax<Json> {
  public:
    bool null() override { return true; }
    bool boolean(bool) override { return true; }
    bool number_integer(number_integer_t) override { return true; }
    bool number_unsigned(number_unsigned_t) override { return true; }
    bool number_float(number_float_t, const string_t&) override { return true; }
    bool string(string_t&) override { return true; }
    bool binary(binary_t&) override { return true; }
    bool start_object(std::size_t) override { return true; }
    bool key(string_t&) override { return true; }
    bool end_object() override { return true; }
    bool start_array(std::size_t) override { return true; }
    bool end_array() override { return true; }
    bool parse_error(std::size_t, const std::string&, const Json::exception& error) override {
        m_message = error.what();
        return false;
    }

    [[nodiscard]] const std::string& message() const { return m_message; }

  private:
    std::string m_message;
};

} // namespace

std::optional<std::string> jsonFault(std::string_view text) {
    FaultListener listener;
    if (Json::sax_parse(text, &listener)) {
        return std::nullopt;
    }
    std::string message = listener.message();
    // "[json.exception.parse_error.101] parse error at line 3, column 14: what is wrong"
    const std::size_t place = message.find("line ");
    message.erase(0, std::min(place, message.size()));
    std::ranges::replace(message, '\n', ' ');
    if (message.size() > longestMessage) {
        std::size_t end = longestMessage;
        while (end > 0 && (static_cast<unsigned char>(message[end]) & 0xC0U) == 0x80U) {
            --end;
        }
        message = message.substr(0, end) + "...";
    }
    return message;
}

} // namespace vasker
