#pragma once
// The records of one packaged release of the Canadian energy infrastructure map, and how its file
// is loaded: whole and checked, or not at all.
//
// All records are plain values that nobody changes after decode(); they may be read from any
// thread. Texts are UTF-8. Coordinates are WGS-84 decimal degrees.

#include "data/text/TextLocale.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

struct OpenMapRelease {
    /// Why a release file is refused.
    enum class Invalid { oversized, checksum, schema, records, provenance, coordinates };

    /// The fixed, user-facing message of a refusal.
    [[nodiscard]] static std::string_view errorDescription(Invalid invalid) noexcept;

    /// A refusal as decode() throws it: what() is errorDescription(); place() says which rule
    /// failed and where, for people who package releases
    /// ("assets[12].routes[0][3]: longitude 200 is outside -180 to 180").
    class Refusal;

    /// Where in the file a value stands that has the wrong JSON type. The JSON library's own errors
    /// that decode() passes on carry this as a second base where the place is known; what() is the
    /// library's text, unchanged.
    class Located;

    /// A position of a route. The file has longitude first. One that the file gives with more or
    /// fewer than two numbers is read as {NaN, NaN}, which no file can say otherwise, and refused.
    struct Position {
        double longitude; ///< degrees, -180 to 180 once validated
        double latitude;  ///< degrees, -90 to 90 once validated
        friend bool operator==(const Position&, const Position&) = default;
    };
    using Route = std::vector<Position>;

    /// A cited public dataset.
    struct Source {
        std::string id;          ///< 64 hexadecimal digits
        std::string publisher;   ///< also the fallback of shortName()
        std::string dataset;     ///< one of five keys, see ReleaseRules
        std::string sourceURL;   ///< https
        std::string licenceURL;  ///< https
        std::string attribution; ///< as the licence requires it
        std::string conditions;
        std::string modifications;

        /// A short display name by `dataset`; the publisher for an unknown key.
        [[nodiscard]] std::string_view shortName() const noexcept;
        friend bool operator==(const Source&, const Source&) = default;
    };

    /// A further reported value of a record.
    struct Fact {
        std::string label;
        std::string value;
        std::string sourceID; ///< the `id` of a Source
        std::string asOf;     ///< the period of this value
        friend bool operator==(const Fact&, const Fact&) = default;
    };

    /// A mapped record: a facility (no route) or a pipeline (one route or more).
    struct Asset {
        std::string id;
        std::string name;
        std::string kind; ///< category key such as "gas_plant"; may be empty or unknown
        std::string jurisdiction;
        std::string sourceID; ///< the `id` of a Source
        std::string status;
        std::string asOf;
        double latitude = 0;  ///< degrees
        double longitude = 0; ///< degrees
        std::optional<std::string> reportedCompany;
        std::vector<Fact> facts;
        std::vector<Route> routes;

        /// The display label of a category key: a fixed label for eight keys, any other key
        /// capitalised word by word, the empty label for the empty key.
        [[nodiscard]] static std::string categoryLabel(std::string_view kind);
        /// categoryLabel() of this record's `kind`.
        [[nodiscard]] std::string category() const;
        /// Whether the record is drawn as lines: it has at least one route.
        [[nodiscard]] bool hasRoute() const noexcept { return !routes.empty(); }
        /// Whether name, id, company, jurisdiction or a fact's value contains `query`, ignoring
        /// letter case in `locale` and nothing else. The empty query matches every record.
        [[nodiscard]] bool matches(std::string_view query, const TextLocale& locale) const;
        friend bool operator==(const Asset&, const Asset&) = default;
    };

    std::int64_t schemaVersion = 1;
    std::string releaseID;
    std::string generatedAt; ///< packaging time, an internet date-time
    std::string coverageName;
    std::vector<std::string> limitations;
    std::vector<Source> sources;
    std::vector<Asset> assets;

    /// Largest file that is accepted, in bytes.
    static constexpr std::size_t maximumFileSize = 15'000'000;

    /// The release in `bytes`, checked whole: size, digest, typed decoding, version, unknown keys,
    /// rules. Throws Refusal, or the JSON library's own error (a std::exception) unchanged.
    /// `expectedSHA256` is compared as it stands with 64 lower-case hexadecimal digits.
    /// Where an object repeats a key, the last value counts, as in most JSON readers.
    [[nodiscard]] static OpenMapRelease decode(std::string_view bytes,
                                               std::string_view expectedSHA256);

    /// The first source with exactly this id, or nullptr. Lives as long as the release.
    [[nodiscard]] const Source* source(std::string_view id) const noexcept;

    friend bool operator==(const OpenMapRelease&, const OpenMapRelease&) = default;
};

class OpenMapRelease::Located {
  public:
    explicit Located(std::string place) : m_place(std::move(place)) {}
    virtual ~Located() = default;
    [[nodiscard]] const std::string& place() const noexcept { return m_place; }

  protected:
    Located(const Located&) = default;
    Located& operator=(const Located&) = default;

  private:
    std::string m_place;
};

class OpenMapRelease::Refusal final : public std::exception, public Located {
  public:
    Refusal(Invalid invalid, std::string place) : Located(std::move(place)), m_invalid(invalid) {}
    [[nodiscard]] Invalid invalid() const noexcept { return m_invalid; }
    [[nodiscard]] const char* what() const noexcept override;

  private:
    Invalid m_invalid;
};

} // namespace vasker
