#pragma once
// The records of a release of the Canadian energy infrastructure map, and how a release is loaded:
// checked as a whole, or not at all.
//
// All records are plain values that never change after decode(), so that any thread may read them.
// Texts are UTF-8. Coordinates are WGS-84 decimal degrees.

#include "data/text/TextLocale.h"

#include <cstddef>
#include <cstdint>
#include <exception>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

struct OpenMapRelease {
    /// Why a release is refused.
    enum class Invalid { oversized, checksum, schema, records, provenance, coordinates };

    /// Returns the fixed message that users see for a refusal.
    [[nodiscard]] static std::string_view errorDescription(Invalid invalid) noexcept;

    /// The error of decode() for a release that is refused. what() is errorDescription(); place()
    /// tells people who make releases which rule is broken and where, as in
    /// "assets[12].routes[0][3]: longitude 200 is outside -180 to 180".
    class Refusal;

    /// The place in the file of the value that an error is about. It is a second base of the JSON
    /// library's errors that decode() passes on, if their place is known.
    class Located;

    /// A position of a route. The file has longitude first. {NaN, NaN} stands for a position of the
    /// file that has not two numbers; it is refused.
    struct Position {
        double longitude; ///< degrees, -180 to 180 in a valid release
        double latitude;  ///< degrees, -90 to 90 in a valid release
        friend bool operator==(const Position&, const Position&) = default;
    };
    using Route = std::vector<Position>;

    /// A cited public dataset.
    struct Source {
        std::string id; ///< 64 hexadecimal digits
        std::string publisher;
        std::string dataset;     ///< one of datasetKeys
        std::string sourceURL;   ///< https
        std::string licenceURL;  ///< https
        std::string attribution; ///< the text that the licence requires
        std::string conditions;
        std::string modifications;

        /// Returns a short name for `dataset`, or the publisher if the key is unknown. The view
        /// lives as long as this source.
        [[nodiscard]] std::string_view shortName() const noexcept;
        friend bool operator==(const Source&, const Source&) = default;
    };

    /// A further reported value of a record.
    struct Fact {
        std::string label;
        std::string value;
        std::string sourceID; ///< the `id` of a source
        std::string asOf;     ///< the period that the value describes
        friend bool operator==(const Fact&, const Fact&) = default;
    };

    /// A mapped record: a facility, which has no route, or a pipeline.
    struct Asset {
        std::string id;
        std::string name;
        std::string kind; ///< a category key such as "gas_plant"; may be empty or unknown
        std::string jurisdiction;
        std::string sourceID; ///< the `id` of a source
        std::string status;
        std::string asOf;     ///< the period that the record describes
        double latitude = 0;  ///< degrees
        double longitude = 0; ///< degrees
        std::optional<std::string> reportedCompany;
        std::vector<Fact> facts;
        std::vector<Route> routes;

        /// Returns the label of a category key: a fixed label for eight keys, else the key with
        /// each word capitalized.
        [[nodiscard]] static std::string categoryLabel(std::string_view kind);
        /// Returns categoryLabel() of this record's `kind`.
        [[nodiscard]] std::string category() const;
        /// Returns whether the record has at least one route.
        [[nodiscard]] bool hasRoute() const noexcept { return !routes.empty(); }
        /// Returns whether name, id, company, jurisdiction or the value of a fact contains `query`,
        /// ignoring letter case in `locale`. Each record matches the empty query.
        [[nodiscard]] bool matches(std::string_view query, const TextLocale& locale) const;
        friend bool operator==(const Asset&, const Asset&) = default;
    };

    std::int64_t schemaVersion = 1;
    std::string releaseID;
    std::string generatedAt; ///< when the release was packaged, an internet date-time
    std::string coverageName;
    std::vector<std::string> limitations;
    std::vector<Source> sources;
    std::vector<Asset> assets;

    /// Size of the largest accepted file, in bytes.
    static constexpr std::size_t maximumFileSize = 15'000'000;

    /// Returns the release in the file `bytes` if it passes all checks, in this order: size,
    /// digest, JSON types, schema version, unknown keys, rules.
    ///
    /// Throws Refusal, or the JSON library's own error unchanged, a std::exception.
    /// `expectedSHA256` is compared exactly with 64 lower-case hexadecimal digits.
    [[nodiscard]] static OpenMapRelease decode(std::string_view bytes,
                                               std::string_view expectedSHA256);

    /// The same for bytes that the caller no longer needs, which spares a copy of them if they have
    /// the capacity that readWholeFile() leaves. Throws Cancelled if `stop` asks to stop, which is
    /// checked between the steps and within long ones.
    [[nodiscard]] static OpenMapRelease
    decode(std::string&& bytes, std::string_view expectedSHA256, const std::stop_token& stop);

    /// Returns the first source with exactly this id, or nullptr. It lives as long as the release.
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
