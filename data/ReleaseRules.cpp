#include "data/ReleaseRules.h"

#include "data/Cancelled.h"
#include "data/Citations.h"
#include "data/InternetDateTime.h"
#include "data/WebAddress.h"
#include "data/text/Characters.h"
#include "data/text/Hexadecimal.h"

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

/// How a rule is broken, and where; nothing if it is kept.
using Violation = std::optional<std::string>;

template <typename Subject>
struct Rule {
    Invalid invalid;
    Violation (*check)(Subject& subject);
};

template <typename Subject, std::size_t Count>
void apply(const std::array<Rule<Subject>, Count>& rules, Subject& subject) {
    for (const auto& rule : rules) {
        if (Violation violation = rule.check(subject)) {
            throw OpenMapRelease::Refusal(rule.invalid, std::move(*violation));
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

Violation anyIsEmpty(std::initializer_list<NamedText> fields) {
    for (const auto& [key, text] : fields) {
        if (text.empty()) {
            return std::string(key) + ": empty";
        }
    }
    return std::nullopt;
}

/// A text has at most as many characters as bytes, so that few texts are counted.
bool isLonger(std::string_view text, std::size_t limit) {
    return text.size() > limit && characterCount(text, limit) > limit;
}

Violation
countIsOutside(std::string_view list, std::size_t count, std::size_t minimum, std::size_t maximum) {
    return count < minimum || count > maximum
               ? Violation(std::string(list) + ": " + std::to_string(count) + " is outside " +
                           std::to_string(minimum) + " to " + std::to_string(maximum))
               : std::nullopt;
}

template <typename Record>
Violation idIsRepeated(std::string_view list, const std::vector<Record>& records) {
    std::unordered_set<std::string_view> ids;
    ids.reserve(records.size());
    for (std::size_t at = 0; at < records.size(); ++at) {
        if (!ids.insert(records[at].id).second) {
            return element(list, at) + ".id: \"" + records[at].id + "\" is repeated";
        }
    }
    return std::nullopt;
}

// The release as a whole.

Violation releaseIDIsEmpty(const OpenMapRelease& release) {
    return anyIsEmpty({{"releaseID", release.releaseID}});
}

Violation coverageNameIsEmpty(const OpenMapRelease& release) {
    return anyIsEmpty({{"coverageName", release.coverageName}});
}

Violation generatedAtIsInvalid(const OpenMapRelease& release) {
    return isInternetDateTime(release.generatedAt)
               ? std::nullopt
               : Violation("generatedAt: \"" + release.generatedAt +
                           "\" is not an internet date-time");
}

Violation limitationsAreMissing(const OpenMapRelease& release) {
    return release.limitations.empty() ? Violation("limitations: none") : std::nullopt;
}

Violation assetCountIsOutside(const OpenMapRelease& release) {
    return countIsOutside("assets", release.assets.size(), 1, maximumAssets);
}

Violation assetIDIsRepeated(const OpenMapRelease& release) {
    return idIsRepeated("assets", release.assets);
}

Violation sourceCountIsOutside(const OpenMapRelease& release) {
    return countIsOutside("sources", release.sources.size(), 1, maximumSources);
}

Violation sourceIDIsRepeated(const OpenMapRelease& release) {
    return idIsRepeated("sources", release.sources);
}

constexpr std::array<Rule<const OpenMapRelease>, 8> releaseRules = {{
    {Invalid::records, releaseIDIsEmpty},
    {Invalid::records, coverageNameIsEmpty},
    {Invalid::records, generatedAtIsInvalid},
    {Invalid::records, limitationsAreMissing},
    {Invalid::records, assetCountIsOutside},
    {Invalid::records, assetIDIsRepeated},
    {Invalid::provenance, sourceCountIsOutside},
    {Invalid::provenance, sourceIDIsRepeated},
}};

// Each source.

struct SourceSubject {
    const Source& source;
    std::size_t index;

    [[nodiscard]] std::string place() const { return element("sources", index) + '.'; }
};

Violation sourceIDIsNotHexadecimal(const SourceSubject& subject) {
    return isHexadecimal(subject.source.id, sourceIDLength)
               ? std::nullopt
               : Violation(subject.place() + "id: not " + std::to_string(sourceIDLength) +
                           " hexadecimal digits");
}

Violation datasetIsUnknown(const SourceSubject& subject) {
    const std::string& dataset = subject.source.dataset;
    return std::ranges::find(datasetKeys, dataset) != datasetKeys.end()
               ? std::nullopt
               : Violation(subject.place() + "dataset: \"" + dataset + "\" is not accepted");
}

Violation sourceTextIsEmpty(const SourceSubject& subject) {
    const Source& source = subject.source;
    const Violation violation = anyIsEmpty({{"publisher", source.publisher},
                                            {"attribution", source.attribution},
                                            {"conditions", source.conditions},
                                            {"modifications", source.modifications}});
    return violation ? Violation(subject.place() + *violation) : std::nullopt;
}

Violation isNotSecure(const std::string& url, const std::string& place) {
    return secureURL(url) ? std::nullopt
                          : Violation(place + ": \"" + url +
                                      "\" is not an https address with a host and without a user");
}

Violation sourceURLIsNotSecure(const SourceSubject& subject) {
    return isNotSecure(subject.source.sourceURL, subject.place() + "sourceURL");
}

Violation licenceURLIsNotSecure(const SourceSubject& subject) {
    return isNotSecure(subject.source.licenceURL, subject.place() + "licenceURL");
}

constexpr std::array<Rule<const SourceSubject>, 5> sourceRules = {{
    {Invalid::provenance, sourceIDIsNotHexadecimal},
    {Invalid::provenance, datasetIsUnknown},
    {Invalid::provenance, sourceTextIsEmpty},
    {Invalid::provenance, sourceURLIsNotSecure},
    {Invalid::provenance, licenceURLIsNotSecure},
}};

// Each asset.

struct AssetSubject {
    const Asset& asset;
    std::size_t index;
    Citations& citations;
    std::size_t& routePoints; ///< of this asset and those before it

    [[nodiscard]] std::string place() const { return element("assets", index); }
};

Violation assetTextIsEmpty(AssetSubject& subject) {
    const Asset& asset = subject.asset;
    const Violation violation = anyIsEmpty(
        {{"id", asset.id}, {"name", asset.name}, {"status", asset.status}, {"asOf", asset.asOf}});
    return violation ? Violation(subject.place() + '.' + *violation) : std::nullopt;
}

Violation nameIsTooLong(AssetSubject& subject) {
    return isLonger(subject.asset.name, maximumNameLength)
               ? Violation(subject.place() + ".name: more than " +
                           std::to_string(maximumNameLength) + " characters")
               : std::nullopt;
}

Violation factsAreTooMany(AssetSubject& subject) {
    const std::size_t count = subject.asset.facts.size();
    return count > maximumFacts ? Violation(subject.place() + ".facts: " + std::to_string(count) +
                                            " are more than " + std::to_string(maximumFacts))
                                : std::nullopt;
}

Violation assetSourceIsUnknown(AssetSubject& subject) {
    return subject.citations.cite(subject.asset.sourceID)
               ? std::nullopt
               : Violation(subject.place() + ".sourceID: no source has this id");
}

/// False for NaN, too.
bool isWithin(double degrees, double largest) {
    return std::abs(degrees) <= largest;
}

bool validCoordinate(double longitude, double latitude) {
    return isWithin(longitude, largestLongitude) && isWithin(latitude, largestLatitude);
}

/// What is wrong with a position that is not valid.
std::string invalidCoordinate(double longitude, double latitude) {
    if (std::isnan(longitude) && std::isnan(latitude)) {
        return "not a pair of longitude and latitude";
    }
    return isWithin(longitude, largestLongitude)
               ? "latitude " + shortest(latitude) + " is outside -90 to 90"
               : "longitude " + shortest(longitude) + " is outside -180 to 180";
}

Violation pointIsInvalid(AssetSubject& subject) {
    const auto [longitude, latitude] = std::pair(subject.asset.longitude, subject.asset.latitude);
    return validCoordinate(longitude, latitude)
               ? std::nullopt
               : Violation(subject.place() + ": " + invalidCoordinate(longitude, latitude));
}

Violation routeSizeIsOutside(std::size_t points, std::size_t pointsOfRelease) {
    if (points < minimumRoutePoints) {
        return "fewer than " + std::to_string(minimumRoutePoints) + " points";
    }
    return pointsOfRelease > maximumRoutePoints
               ? Violation("the release has more than " + std::to_string(maximumRoutePoints) +
                           " route points")
               : std::nullopt;
}

Violation routeIsInvalid(AssetSubject& subject) {
    const auto& routes = subject.asset.routes;
    for (std::size_t at = 0; at < routes.size(); ++at) {
        const auto place = [&] { return subject.place() + '.' + element("routes", at); };
        subject.routePoints += routes[at].size();
        if (const Violation violation =
                routeSizeIsOutside(routes[at].size(), subject.routePoints)) {
            return place() + ": " + *violation;
        }
        for (std::size_t point = 0; point < routes[at].size(); ++point) {
            const auto [longitude, latitude] = routes[at][point];
            if (!validCoordinate(longitude, latitude)) {
                return element(place(), point) + ": " + invalidCoordinate(longitude, latitude);
            }
        }
    }
    return std::nullopt;
}

Violation factIsIncomplete(const Fact& fact, Citations& citations) {
    if (Violation violation =
            anyIsEmpty({{"label", fact.label}, {"value", fact.value}, {"asOf", fact.asOf}})) {
        return violation;
    }
    if (isLonger(fact.value, maximumFactValueLength)) {
        return "value: more than " + std::to_string(maximumFactValueLength) + " characters";
    }
    return citations.cite(fact.sourceID) ? std::nullopt
                                         : Violation("sourceID: no source has this id");
}

Violation anyFactIsIncomplete(AssetSubject& subject) {
    const auto& facts = subject.asset.facts;
    for (std::size_t at = 0; at < facts.size(); ++at) {
        if (const Violation violation = factIsIncomplete(facts[at], subject.citations)) {
            return subject.place() + '.' + element("facts", at) + '.' + *violation;
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
    {Invalid::provenance, anyFactIsIncomplete},
}};

} // namespace

void validate(const OpenMapRelease& release, const std::stop_token& stop) {
    apply(releaseRules, release);
    for (std::size_t at = 0; at < release.sources.size(); ++at) {
        const SourceSubject subject{release.sources[at], at};
        apply(sourceRules, subject);
    }
    Citations citations(release.sources);
    std::size_t routePoints = 0;
    for (std::size_t at = 0; at < release.assets.size(); ++at) {
        throwIfCancelled(stop);
        AssetSubject subject{release.assets[at], at, citations, routePoints};
        apply(assetRules, subject);
    }
    if (const auto source = citations.firstUncited()) {
        throw OpenMapRelease::Refusal(Invalid::provenance,
                                      element("sources", *source) + ": cited by no asset or fact");
    }
}

} // namespace vasker
