#include "tools/openmap-release/packing/tables/NpriReleases.h"

#include "tools/openmap-release/packing/tables/NpriId.h"
#include "tools/openmap-release/packing/tables/RowReader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <set>
#include <string_view>

namespace vasker {
namespace {

/// The common air pollutants, in the order in which they are shown.
constexpr auto airPollutants =
    std::to_array<std::string_view>({"Nitrogen oxides (expressed as nitrogen dioxide)",
                                     "Sulphur dioxide",
                                     "Carbon monoxide",
                                     "Volatile Organic Compounds (VOCs)",
                                     "Total particulate matter",
                                     "PM10 - Particulate Matter <= 10 Micrometers",
                                     "PM2.5 - Particulate Matter <= 2.5 Micrometers"});

struct Release {
    NpriRelease shown;
    std::ptrdiff_t place = 0; ///< among the air pollutants; their number for any other substance
    double kilograms = 0;
};

struct FacilityReleases {
    int year = 0;
    std::vector<Release> releases;
    std::size_t earlier = 0; ///< rows of earlier years
};

/// A number with more digits than a decimal of a binary one can carry, "0.61623000000000006", in
/// its shortest form, "0.61623"; any other as it stands.
std::string withoutBinaryNoise(const std::string& number) {
    constexpr std::ptrdiff_t reliableDigits = 15;
    const std::size_t first = std::min(number.find_first_of("123456789"), number.size());
    const auto digits = std::count_if(number.begin() + static_cast<std::ptrdiff_t>(first),
                                      number.end(),
                                      [](char byte) { return byte != '.'; });
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (digits <= reliableDigits || error != std::errc()) {
        return number;
    }
    std::array<char, 32> shortest{};
    const auto written =
        std::to_chars(shortest.begin(), shortest.end(), value, std::chars_format::fixed);
    return written.ec == std::errc() ? std::string(shortest.begin(), written.ptr) : number;
}

Release readRelease(const RowReader& row, PackTally& tally) {
    Release release;
    release.shown.substance = row.requiredText("Substance");
    release.place =
        std::ranges::find(airPollutants, release.shown.substance) - airPollutants.begin();
    const std::string unit = row.requiredText("Unit");
    if (unit != "tonnes" && unit != "kg") {
        row.refuse("Unit \"" + unit + "\" is neither tonnes nor kg");
    }
    const std::string published = row.requiredText("Quantity, all media");
    const std::string number = withoutBinaryNoise(published);
    const std::optional<std::string> digits = groupedNumber(number);
    if (!digits) {
        row.refuse("Quantity, all media \"" + published + "\" is not a number");
    }
    if (number != published) {
        tally.add(TableRole::npriReleases,
                  PackStep::corrected,
                  "quantities whose last digits are rounding noise",
                  row.requiredText("NPRI_ID"));
    }
    release.shown.quantity = *digits + " " + unit;
    std::from_chars(number.data(), number.data() + number.size(), release.kilograms);
    release.kilograms *= unit == "tonnes" ? 1000 : 1;
    return release;
}

/// Keeps the rows of the facility's latest year.
void add(FacilityReleases& facility, int year, Release release) {
    if (year < facility.year) {
        ++facility.earlier;
        return;
    }
    if (year > facility.year) {
        facility.earlier += facility.releases.size();
        facility.releases.clear();
        facility.year = year;
    }
    facility.releases.push_back(std::move(release));
}

NpriReleases sorted(FacilityReleases&& facility, const std::string& id, PackTally& tally) {
    std::ranges::stable_sort(facility.releases, [](const Release& one, const Release& other) {
        return one.place != other.place ? one.place < other.place : one.kilograms > other.kilograms;
    });
    NpriReleases releases{facility.year, {}};
    for (Release& release : facility.releases) {
        if (releases.substances.size() == mostReleases) {
            tally.add(TableRole::npriReleases, PackStep::dropped, "substances beyond ten", id);
        } else {
            releases.substances.push_back(std::move(release.shown));
        }
    }
    tally.add(
        TableRole::npriReleases, PackStep::dropped, "rows of earlier years", facility.earlier);
    return releases;
}

} // namespace

std::map<std::string, NpriReleases, std::less<>> readNpriReleases(const CsvTable& table,
                                                                  PackTally& tally) {
    std::map<std::string, FacilityReleases, std::less<>> facilities;
    std::set<std::string> known;
    for (const CsvTable::Row& cells : table.rows()) {
        const RowReader row(table, cells);
        const std::string id = plainNpriId(row.requiredDigits("NPRI_ID"));
        const int year = row.requiredYear("Year");
        Release release = readRelease(row, tally);
        if (!known.insert(id + " " + std::to_string(year) + " " + release.shown.substance).second) {
            row.refuse("NPRI_ID " + id + ": \"" + release.shown.substance + "\" stands twice");
        }
        add(facilities[id], year, std::move(release));
    }
    std::map<std::string, NpriReleases, std::less<>> releases;
    for (auto& [id, facility] : facilities) {
        releases.emplace(id, sorted(std::move(facility), id, tally));
    }
    return releases;
}

} // namespace vasker
