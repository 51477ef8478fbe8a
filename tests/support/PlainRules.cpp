#include "tests/support/PlainRules.h"

#include <arpa/inet.h>
#include <unicode/brkiter.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>

namespace vasker {

namespace {

using Invalid = OpenMapRelease::Invalid;

bool isDigit(char each) {
    return each >= '0' && each <= '9';
}

bool isHexadecimalDigit(char each) {
    return isDigit(each) || (each >= 'a' && each <= 'f') || (each >= 'A' && each <= 'F');
}

bool isSourceID(const std::string& id) {
    const icu::UnicodeString text = icu::UnicodeString::fromUTF8(id);
    for (int32_t at = 0; at < text.length(); ++at) {
        constexpr int distance = 0xFF01 - 0x21; // from ASCII to the full-width forms
        const int each = text[at] > 0xFF00 ? text[at] - distance : text[at];
        if (each > 0x7F || !isHexadecimalDigit(static_cast<char>(each))) {
            return false;
        }
    }
    return text.length() == 64;
}

int characters(const std::string& text) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::BreakIterator> iterator(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    if (U_FAILURE(status)) {
        throw std::runtime_error(u_errorName(status));
    }
    const icu::UnicodeString utf16 = icu::UnicodeString::fromUTF8(text);
    iterator->setText(utf16);
    int count = 0;
    while (iterator->next() != icu::BreakIterator::DONE) {
        ++count;
    }
    return count;
}

bool isOnEarth(double longitude, double latitude) {
    return std::isfinite(longitude) && std::isfinite(latitude) && longitude >= -180 &&
           longitude <= 180 && latitude >= -90 && latitude <= 90;
}

bool isValid(const OpenMapRelease::Source& source) {
    static const std::set<std::string> datasets = {"npri-facility-locations-2024",
                                                   "ghgrp-facility-emissions",
                                                   "gem-goit-pipelines",
                                                   "gem-ggit-pipelines",
                                                   "gem-ggit-lng-terminals"};
    return isSourceID(source.id) && datasets.contains(source.dataset) &&
           !source.publisher.empty() && !source.attribution.empty() && !source.conditions.empty() &&
           !source.modifications.empty() && plainSecureURL(source.sourceURL) &&
           plainSecureURL(source.licenceURL);
}

std::optional<Invalid> verdictOf(const OpenMapRelease::Asset& asset,
                                 const std::set<std::string>& sourceIDs,
                                 std::size_t& routePoints) {
    if (asset.id.empty() || asset.name.empty() || asset.status.empty() || asset.asOf.empty() ||
        characters(asset.name) > 1'000 || asset.facts.size() > 50) {
        return Invalid::records;
    }
    if (!sourceIDs.contains(asset.sourceID)) {
        return Invalid::provenance;
    }
    if (!isOnEarth(asset.longitude, asset.latitude)) {
        return Invalid::coordinates;
    }
    for (const OpenMapRelease::Route& route : asset.routes) {
        routePoints += route.size();
        if (route.size() < 2 || routePoints > 300'000) {
            return Invalid::coordinates;
        }
        for (const OpenMapRelease::Position& position : route) {
            if (!isOnEarth(position.longitude, position.latitude)) {
                return Invalid::coordinates;
            }
        }
    }
    for (const OpenMapRelease::Fact& fact : asset.facts) {
        if (fact.label.empty() || fact.value.empty() || fact.asOf.empty() ||
            characters(fact.value) > 10'000 || !sourceIDs.contains(fact.sourceID)) {
            return Invalid::provenance;
        }
    }
    return std::nullopt;
}

/// The digits are known to be digits.
bool isDayAndTime(std::string_view text) {
    const auto number = [&](std::size_t at, std::size_t length) {
        return std::stoi(std::string(text.substr(at, length)));
    };
    const int year = number(0, 4);
    const int month = number(5, 2);
    const bool isLeapYear = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    const int daysOfMonth = month == 2 ? 28 + (isLeapYear ? 1 : 0)
                            : month == 4 || month == 6 || month == 9 || month == 11 ? 30
                                                                                    : 31;
    return month >= 1 && month <= 12 && number(8, 2) >= 1 && number(8, 2) <= daysOfMonth &&
           number(11, 2) < 24 && number(14, 2) < 60 && number(17, 2) < 60 &&
           (text.back() == 'Z' || (number(20, 2) < 24 && number(23, 2) < 60));
}

// The grammar of RFC 3986.

bool isUnreservedOrDelimiter(char each) {
    return isDigit(each) || (each >= 'a' && each <= 'z') || (each >= 'A' && each <= 'Z') ||
           (each != '\0' && std::string_view("-._~!$&'()*+,;=").find(each) != std::string::npos);
}

/// Whether `text` consists of percent-encoded bytes, characters of all parts, and those in `more`.
bool consistsOf(std::string_view text, std::string_view more) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '%') {
            if (at + 2 >= text.size() || !isHexadecimalDigit(text[at + 1]) ||
                !isHexadecimalDigit(text[at + 2])) {
                return false;
            }
            at += 2;
        } else if (!isUnreservedOrDelimiter(text[at]) &&
                   more.find(text[at]) == std::string_view::npos) {
            return false;
        }
    }
    return true;
}

bool isPort(std::string_view text) {
    return text.empty() || (text.front() == ':' && text.substr(1).find_first_not_of("0123456789") ==
                                                       std::string_view::npos);
}

/// The inside of the brackets.
bool isAddressLiteral(std::string_view text) {
    if (text.starts_with('v') || text.starts_with('V')) {
        const std::size_t dot = text.find('.');
        if (dot == std::string_view::npos || dot < 2 || dot + 1 == text.size()) {
            return false;
        }
        for (const char each : text.substr(1, dot - 1)) {
            if (!isHexadecimalDigit(each)) {
                return false;
            }
        }
        return text.find('%') == std::string_view::npos && consistsOf(text.substr(dot + 1), ":");
    }
    std::array<unsigned char, sizeof(in6_addr)> address{};
    return text.find('\0') == std::string_view::npos &&
           inet_pton(AF_INET6, std::string(text).c_str(), address.data()) == 1;
}

bool isHostAndPort(std::string_view text) {
    if (text.starts_with('[')) {
        const std::size_t end = text.find(']');
        return end != std::string_view::npos && isAddressLiteral(text.substr(1, end - 1)) &&
               isPort(text.substr(end + 1));
    }
    const std::size_t end = std::min(text.find(':'), text.size());
    return end > 0 && consistsOf(text.substr(0, end), "") && isPort(text.substr(end));
}

} // namespace

std::optional<Invalid> plainVerdict(const OpenMapRelease& release) {
    std::set<std::string> assetIDs;
    for (const OpenMapRelease::Asset& asset : release.assets) {
        assetIDs.insert(asset.id);
    }
    if (release.releaseID.empty() || release.coverageName.empty() ||
        !plainIsInternetDateTime(release.generatedAt) || release.limitations.empty() ||
        release.assets.empty() || release.assets.size() > 10'000 ||
        assetIDs.size() < release.assets.size()) {
        return Invalid::records;
    }
    std::set<std::string> sourceIDs;
    for (const OpenMapRelease::Source& source : release.sources) {
        sourceIDs.insert(source.id);
        if (!isValid(source)) {
            return Invalid::provenance;
        }
    }
    if (release.sources.empty() || release.sources.size() > 100 ||
        sourceIDs.size() < release.sources.size()) {
        return Invalid::provenance;
    }
    std::size_t routePoints = 0;
    std::set<std::string> cited;
    for (const OpenMapRelease::Asset& asset : release.assets) {
        if (const auto verdict = verdictOf(asset, sourceIDs, routePoints)) {
            return verdict;
        }
        cited.insert(asset.sourceID);
        for (const OpenMapRelease::Fact& fact : asset.facts) {
            cited.insert(fact.sourceID);
        }
    }
    return cited == sourceIDs ? std::nullopt : std::optional(Invalid::provenance);
}

bool plainIsInternetDateTime(std::string_view text) {
    const std::string_view shape = text.ends_with('Z') ? "dddd-dd-ddTdd:dd:ddZ"
                                   : text.size() > 19 && text[19] == '-'
                                       ? "dddd-dd-ddTdd:dd:dd-dd:dd"
                                       : "dddd-dd-ddTdd:dd:dd+dd:dd";
    if (text.size() != shape.size()) {
        return false;
    }
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (shape[at] == 'd' ? !isDigit(text[at]) : text[at] != shape[at]) {
            return false;
        }
    }
    return isDayAndTime(text);
}

bool plainSecureURL(std::string_view text) {
    constexpr std::string_view scheme = "https://";
    if (!text.starts_with(scheme)) {
        return false;
    }
    text.remove_prefix(scheme.size());
    const std::size_t hostEnd = std::min(text.find_first_of("/?#"), text.size());
    const std::size_t fragment = std::min(text.find('#'), text.size());
    return isHostAndPort(text.substr(0, hostEnd)) &&
           consistsOf(text.substr(hostEnd, fragment - hostEnd), ":@/?") &&
           (fragment == text.size() || consistsOf(text.substr(fragment + 1), ":@/?"));
}

} // namespace vasker
