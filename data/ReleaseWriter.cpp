#include "data/ReleaseWriter.h"

#include "data/JsonText.h"
#include "data/ReleaseFields.h"

#include <array>
#include <charconv>
#include <cmath>
#include <stdexcept>

namespace vasker {

namespace {

void append(std::string& json, std::string_view text) {
    appendJsonText(json, text);
}

void append(std::string& json, std::int64_t number) {
    json += std::to_string(number);
}

/// The shortest digits that read back to `number`. Large numbers keep an exponent and negative zero
/// its fraction: written as integers, the one would be too long for readers of 64-bit integers and
/// the other would lose its sign.
void append(std::string& json, double number) {
    constexpr double largestPlain = 1e15;
    if (!std::isfinite(number)) {
        throw std::domain_error("JSON has no number for an infinite or undefined value");
    }
    if (number == 0 && std::signbit(number)) {
        json += "-0.0";
        return;
    }
    std::array<char, 32> digits{};
    const auto format = std::abs(number) < largestPlain ? std::chars_format::general
                                                        : std::chars_format::scientific;
    const auto written =
        std::to_chars(digits.data(), digits.data() + digits.size(), number, format);
    json.append(digits.data(), written.ptr);
}

void append(std::string& json, const OpenMapRelease::Position& position) {
    if (std::isnan(position.longitude) && std::isnan(position.latitude)) {
        json += "[]";
        return;
    }
    json += '[';
    append(json, position.longitude);
    json += ',';
    append(json, position.latitude);
    json += ']';
}

template <typename Value>
void append(std::string& json, const std::vector<Value>& values);

template <typename Value>
void appendField(std::string& json, std::string_view key, const Value& value) {
    json += json.back() == '{' ? "" : ",";
    append(json, key);
    json += ':';
    append(json, value);
}

void appendField(std::string& json, std::string_view key, const std::optional<std::string>& text) {
    if (text) {
        appendField(json, key, *text);
    }
}

template <HasFields Record>
void append(std::string& json, const Record& record) {
    json += '{';
    std::apply(
        [&](const auto&... field) { (appendField(json, field.key, record.*field.member), ...); },
        fieldsOf<Record>);
    json += '}';
}

template <typename Value>
void append(std::string& json, const std::vector<Value>& values) {
    json += '[';
    for (const Value& value : values) {
        json += &value == values.data() ? "" : ",";
        append(json, value);
    }
    json += ']';
}

template <typename Record>
std::string encoded(const Record& record) {
    std::string json;
    append(json, record);
    return json;
}

} // namespace

std::string encode(const OpenMapRelease& release) {
    return encoded(release);
}

std::string encode(const OpenMapRelease::Source& source) {
    return encoded(source);
}

std::string encode(const OpenMapRelease::Asset& asset) {
    return encoded(asset);
}

std::string encode(const OpenMapRelease::Fact& fact) {
    return encoded(fact);
}

} // namespace vasker
