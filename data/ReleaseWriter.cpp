#include "data/ReleaseWriter.h"

#include <charconv>
#include <cmath>
#include <stdexcept>

namespace vasker {

namespace {

void append(std::string& json, std::string_view text);
void append(std::string& json, std::int64_t number);
void append(std::string& json, double number);
void append(std::string& json, const OpenMapRelease::Position& position);
void append(std::string& json, const OpenMapRelease::Source& source);
void append(std::string& json, const OpenMapRelease::Fact& fact);
void append(std::string& json, const OpenMapRelease::Asset& asset);
void append(std::string& json, const OpenMapRelease& release);

template <typename Value>
void append(std::string& json, const std::vector<Value>& values) {
    json += '[';
    for (const Value& value : values) {
        if (&value != &values.front()) {
            json += ',';
        }
        append(json, value);
    }
    json += ']';
}

/// The fields of one JSON object, in the order of the calls.
class Object {
  public:
    explicit Object(std::string& json) : m_json(json) {}
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    template <typename Value>
    Object& field(std::string_view key, const Value& value) {
        m_json += m_isEmpty ? '{' : ',';
        m_isEmpty = false;
        append(m_json, key);
        m_json += ':';
        append(m_json, value);
        return *this;
    }

    Object& field(std::string_view key, const std::optional<std::string>& text) {
        return text ? field(key, *text) : *this;
    }

    void end() { m_json += '}'; }

  private:
    std::string& m_json;
    bool m_isEmpty = true;
};

void appendEscaped(std::string& json, char character) {
    constexpr std::string_view digits = "0123456789abcdef";
    switch (character) {
    case '"':
        json += "\\\"";
        break;
    case '\\':
        json += "\\\\";
        break;
    case '\b':
        json += "\\b";
        break;
    case '\f':
        json += "\\f";
        break;
    case '\n':
        json += "\\n";
        break;
    case '\r':
        json += "\\r";
        break;
    case '\t':
        json += "\\t";
        break;
    default:
        json += "\\u00";
        json += digits[static_cast<unsigned char>(character) >> 4U];
        json += digits[static_cast<unsigned char>(character) & 0xFU];
    }
}

bool mustBeEscaped(char character) {
    return character == '"' || character == '\\' || static_cast<unsigned char>(character) < 0x20;
}

void append(std::string& json, std::string_view text) {
    json += '"';
    std::size_t plainBegin = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (mustBeEscaped(text[at])) {
            json += text.substr(plainBegin, at - plainBegin);
            appendEscaped(json, text[at]);
            plainBegin = at + 1;
        }
    }
    json += text.substr(plainBegin);
    json += '"';
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

void append(std::string& json, const OpenMapRelease::Source& source) {
    Object(json)
        .field("id", source.id)
        .field("publisher", source.publisher)
        .field("dataset", source.dataset)
        .field("sourceURL", source.sourceURL)
        .field("licenceURL", source.licenceURL)
        .field("attribution", source.attribution)
        .field("conditions", source.conditions)
        .field("modifications", source.modifications)
        .end();
}

void append(std::string& json, const OpenMapRelease::Fact& fact) {
    Object(json)
        .field("label", fact.label)
        .field("value", fact.value)
        .field("sourceID", fact.sourceID)
        .field("asOf", fact.asOf)
        .end();
}

void append(std::string& json, const OpenMapRelease::Asset& asset) {
    Object(json)
        .field("id", asset.id)
        .field("name", asset.name)
        .field("kind", asset.kind)
        .field("jurisdiction", asset.jurisdiction)
        .field("sourceID", asset.sourceID)
        .field("status", asset.status)
        .field("asOf", asset.asOf)
        .field("latitude", asset.latitude)
        .field("longitude", asset.longitude)
        .field("reportedCompany", asset.reportedCompany)
        .field("facts", asset.facts)
        .field("routes", asset.routes)
        .end();
}

void append(std::string& json, const OpenMapRelease& release) {
    Object(json)
        .field("schemaVersion", release.schemaVersion)
        .field("releaseID", release.releaseID)
        .field("generatedAt", release.generatedAt)
        .field("coverageName", release.coverageName)
        .field("limitations", release.limitations)
        .field("sources", release.sources)
        .field("assets", release.assets)
        .end();
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
