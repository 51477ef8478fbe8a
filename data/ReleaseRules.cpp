#include "data/ReleaseRules.h"

#include "data/Citations.h"
#include "data/InternetDateTime.h"
#include "data/WebAddress.h"
#include "data/text/Characters.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <unordered_set>

namespace vasker {

namespace {

using Invalid = OpenMapRelease::Invalid;
using Asset = OpenMapRelease::Asset;
using Fact = OpenMapRelease::Fact;
using Source = OpenMapRelease::Source;

/// Where and how a rule is broken; nothing where it is kept.
using Finding = std::optional<std::string>;

template <typename Subject>
struct Rule {
    Invalid invalid;
    Finding (*check)(Subject& subject);
};

template <typename Subject, std::size_t Count>
void apply(const std::array<Rule<Subject>, Count>& rules, Subject& subject) {
    for (const auto& rule : rules) {
        if (Finding finding = rule.check(subject)) {
            throw OpenMapRelease::Refusal(rule.invalid, std::move(*finding));
        }
    }
}

std::string element(std::string_view list, std::size_t index) {
    return std::string(list) + '[' + std::to_string(index) + ']';
}

std::string shortest(double number) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    return {digits.data(), end};
}

struct NamedText {
    std::string_view key;
    const std::string& text;
};

Finding firstEmpty(std::initializer_list<NamedText> fields) {
    for (const auto& [key, text] : fields) {
        if (text.empty()) {
            return std::string(key) + ": empty";
        }
    }
    return std::nullopt;
}

/// A text of few bytes has few characters, so that hardly any text is counted.
bool isLonger(std::string_view text, std::size_t limit) {
    return text.size() > limit && characterCount(text, limit) > limit;
}

template <typename Record>
Finding firstRepeatedID(const std::vector<Record>& records, std::string_view list) {
    std::unordered_set<std::string_view> ids;
    ids.reserve(records.size());
    for (std::size_t at = 0; at < records.size(); ++at) {
        if (!ids.insert(records[at].id).second) {
            return element(list, at) + ".id: \"" + records[at].id + "\" stands there before";
        }
    }
    return std::nullopt;
}

// The release as a whole.

Finding releaseIDIsEmpty(const OpenMapRelease& release) {
    return firstEmpty({{"releaseID", release.releaseID}});
}

Finding coverageNameIsEmpty(const OpenMapRelease& release) {
    return firstEmpty({{"coverageName", release.coverageName}});
}

Finding generatedAtIsNoDateTime(const OpenMapRelease& release) {
    return isInternetDateTime(release.generatedAt)
               ? std::nullopt
               : Finding("generatedAt: \"" + release.generatedAt + "\" is no internet date-time");
}

Finding limitationsAreMissing(const OpenMapRelease& release) {
    return release.limitations.empty() ? Finding("limitations: none") : std::nullopt;
}

Finding assetCountIsOutside(const OpenMapRelease& release) {
    const std::size_t count = release.assets.size();
    return count == 0 || count > maximumAssets
               ? Finding("assets: " + std::to_string(count) + " is outside 1 to " +
                         std::to_string(maximumAssets))
               : std::nullopt;
}

Finding assetIDIsRepeated(const OpenMapRelease& release) {
    return firstRepeatedID(release.assets, "assets");
}

Finding sourceCountIsOutside(const OpenMapRelease& release) {
    const std::size_t count = release.sources.size();
    return count == 0 || count > maximumSources
               ? Finding("sources: " + std::to_string(count) + " is outside 1 to " +
                         std::to_string(maximumSources))
               : std::nullopt;
}

Finding sourceIDIsRepeated(const OpenMapRelease& release) {
    return firstRepeatedID(release.sources, "sources");
}

constexpr std::array<Rule<const OpenMapRelease>, 8> releaseRules = {{
    {Invalid::records, releaseIDIsEmpty},
    {Invalid::records, coverageNameIsEmpty},
    {Invalid::records, generatedAtIsNoDateTime},
    {Invalid::records, limitationsAreMissing},
    {Invalid::records, assetCountIsOutside},
    {Invalid::records, assetIDIsRepeated},
    {Invalid::provenance, sourceCountIsOutside},
    {Invalid::provenance, sourceIDIsRepeated},
}};

// Every source.

struct SourceSubject {
    const Source& source;
    std::size_t index;

    [[nodiscard]] std::string place() const { return element("sources", index) + '.'; }
};

/// The length of the hexadecimal digit that `text` begins with, in bytes; 0 if there is none. The
/// full-width forms of the digits (U+FF10 to FF19, FF21 to FF26, FF41 to FF46) are digits as well.
std::size_t hexadecimalDigitLength(std::string_view text) {
    const auto isAny = [](char character, char first, char last) {
        return character >= first && character <= last;
    };
    const char first = text.front();
    if (isAny(first, '0', '9') || isAny(first, 'A', 'F') || isAny(first, 'a', 'f')) {
        return 1;
    }
    constexpr std::size_t wideLength = 3;
    if (text.size() < wideLength) {
        return 0;
    }
    const bool isWide = (text.starts_with("\xEF\xBC") &&
                         (isAny(text[2], '\x90', '\x99') || isAny(text[2], '\xA1', '\xA6'))) ||
                        (text.starts_with("\xEF\xBD") && isAny(text[2], '\x81', '\x86'));
    return isWide ? wideLength : 0;
}

bool isHexadecimal(std::string_view text, std::size_t digits) {
    for (; !text.empty() && digits > 0; --digits) {
        const std::size_t length = hexadecimalDigitLength(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return text.empty() && digits == 0;
}

Finding sourceIDIsNotHexadecimal(const SourceSubject& subject) {
    return isHexadecimal(subject.source.id, sourceIDLength)
               ? std::nullopt
               : Finding(subject.place() + "id: not " + std::to_string(sourceIDLength) +
                         " hexadecimal digits");
}

Finding datasetIsUnknown(const SourceSubject& subject) {
    const std::string& dataset = subject.source.dataset;
    return std::ranges::find(datasetKeys, dataset) != datasetKeys.end()
               ? std::nullopt
               : Finding(subject.place() + "dataset: \"" + dataset + "\" is not accepted");
}

Finding sourceTextIsEmpty(const SourceSubject& subject) {
    const Source& source = subject.source;
    const Finding finding = firstEmpty({{"publisher", source.publisher},
                                        {"attribution", source.attribution},
                                        {"conditions", source.conditions},
                                        {"modifications", source.modifications}});
    return finding ? Finding(subject.place() + *finding) : std::nullopt;
}

Finding notSecure(const std::string& url, const std::string& place) {
    return secureURL(url) ? std::nullopt
                          : Finding(place + ": \"" + url +
                                    "\" is no https address with a host and without a user");
}

Finding sourceURLIsNotSecure(const SourceSubject& subject) {
    return notSecure(subject.source.sourceURL, subject.place() + "sourceURL");
}

Finding licenceURLIsNotSecure(const SourceSubject& subject) {
    return notSecure(subject.source.licenceURL, subject.place() + "licenceURL");
}

constexpr std::array<Rule<const SourceSubject>, 5> sourceRules = {{
    {Invalid::provenance, sourceIDIsNotHexadecimal},
    {Invalid::provenance, datasetIsUnknown},
    {Invalid::provenance, sourceTextIsEmpty},
    {Invalid::provenance, sourceURLIsNotSecure},
    {Invalid::provenance, licenceURLIsNotSecure},
}};

// Every asset.

struct AssetSubject {
    const Asset& asset;
    std::size_t index;
    Citations& citations;
    std::size_t& routePoints; ///< of all assets so far

    [[nodiscard]] std::string place() const { return element("assets", index); }
};

Finding assetTextIsEmpty(AssetSubject& subject) {
    const Asset& asset = subject.asset;
    const Finding finding = firstEmpty(
        {{"id", asset.id}, {"name", asset.name}, {"status", asset.status}, {"asOf", asset.asOf}});
    return finding ? Finding(subject.place() + '.' + *finding) : std::nullopt;
}

Finding nameIsTooLong(AssetSubject& subject) {
    return isLonger(subject.asset.name, maximumNameLength)
               ? Finding(subject.place() + ".name: more than " + std::to_string(maximumNameLength) +
                         " characters")
               : std::nullopt;
}

Finding factsAreTooMany(AssetSubject& subject) {
    const std::size_t count = subject.asset.facts.size();
    return count > maximumFacts ? Finding(subject.place() + ".facts: " + std::to_string(count) +
                                          " are more than " + std::to_string(maximumFacts))
                                : std::nullopt;
}

Finding assetSourceIsUnknown(AssetSubject& subject) {
    return subject.citations.cite(subject.asset.sourceID)
               ? std::nullopt
               : Finding(subject.place() + ".sourceID: no source has this id");
}

/// What is wrong with a position; nothing for a valid one.
Finding invalidCoordinate(double longitude, double latitude) {
    const bool longitudeIsValid =
        std::isfinite(longitude) && std::abs(longitude) <= largestLongitude;
    const bool latitudeIsValid = std::isfinite(latitude) && std::abs(latitude) <= largestLatitude;
    if (longitudeIsValid && latitudeIsValid) {
        return std::nullopt;
    }
    if (std::isnan(longitude) && std::isnan(latitude)) {
        return "not a pair of longitude and latitude";
    }
    return longitudeIsValid ? "latitude " + shortest(latitude) + " is outside -90 to 90"
                            : "longitude " + shortest(longitude) + " is outside -180 to 180";
}

Finding pointIsInvalid(AssetSubject& subject) {
    const Finding finding = invalidCoordinate(subject.asset.longitude, subject.asset.latitude);
    return finding ? Finding(subject.place() + ": " + *finding) : std::nullopt;
}

Finding routeSizeIsOutside(const OpenMapRelease::Route& route, std::size_t routePoints) {
    if (route.size() < minimumRoutePoints) {
        return std::to_string(route.size()) + " points are fewer than " +
               std::to_string(minimumRoutePoints);
    }
    return routePoints > maximumRoutePoints
               ? Finding("the release has more than " + std::to_string(maximumRoutePoints) +
                         " route points")
               : std::nullopt;
}

Finding routeIsInvalid(AssetSubject& subject) {
    const auto& routes = subject.asset.routes;
    for (std::size_t at = 0; at < routes.size(); ++at) {
        subject.routePoints += routes[at].size();
        if (const Finding finding = routeSizeIsOutside(routes[at], subject.routePoints)) {
            return subject.place() + '.' + element("routes", at) + ": " + *finding;
        }
        for (std::size_t point = 0; point < routes[at].size(); ++point) {
            const auto [longitude, latitude] = routes[at][point];
            if (const Finding finding = invalidCoordinate(longitude, latitude)) {
                return subject.place() + '.' + element(element("routes", at), point) + ": " +
                       *finding;
            }
        }
    }
    return std::nullopt;
}

Finding wrongInFact(const Fact& fact, Citations& citations) {
    if (Finding finding =
            firstEmpty({{"label", fact.label}, {"value", fact.value}, {"asOf", fact.asOf}})) {
        return finding;
    }
    if (isLonger(fact.value, maximumFactValueLength)) {
        return "value: more than " + std::to_string(maximumFactValueLength) + " characters";
    }
    return citations.cite(fact.sourceID) ? std::nullopt
                                         : Finding("sourceID: no source has this id");
}

Finding factIsIncomplete(AssetSubject& subject) {
    const auto& facts = subject.asset.facts;
    for (std::size_t at = 0; at < facts.size(); ++at) {
        if (const Finding finding = wrongInFact(facts[at], subject.citations)) {
            return subject.place() + '.' + element("facts", at) + '.' + *finding;
        }
    }
    return std::nullopt;
}

constexpr std::array<Rule<AssetSubject>, 7> assetRules = {{
    {Invalid::records, assetTextIsEmpty},
    {Invalid::records, nameIsTooLong},
    {Invalid::records, factsAreTooMany},
    {Invalid::provenance, assetSourceIsUnknown},
    {Invalid::coordinates, pointIsInvalid},
    {Invalid::coordinates, routeIsInvalid},
    {Invalid::provenance, factIsIncomplete},
}};

void refuseUncitedSource(const Citations& citations) {
    if (const auto source = citations.firstUncited()) {
        throw OpenMapRelease::Refusal(Invalid::provenance,
                                      element("sources", *source) + ": cited by no asset or fact");
    }
}

} // namespace

void validate(const OpenMapRelease& release) {
    apply(releaseRules, release);
    for (std::size_t at = 0; at < release.sources.size(); ++at) {
        const SourceSubject subject{release.sources[at], at};
        apply(sourceRules, subject);
    }
    Citations citations(release.sources);
    std::size_t routePoints = 0;
    for (std::size_t at = 0; at < release.assets.size(); ++at) {
        AssetSubject subject{release.assets[at], at, citations, routePoints};
        apply(assetRules, subject);
    }
    refuseUncitedSource(citations);
}

} // namespace vasker
