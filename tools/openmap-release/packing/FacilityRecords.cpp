#include "tools/openmap-release/packing/FacilityRecords.h"

#include "tools/openmap-release/packing/FactWriter.h"
#include "tools/openmap-release/packing/tables/Cells.h"

#include <algorithm>

namespace vasker {
namespace {

using enum TableRole;

void place(OpenMapRelease::Asset& asset, const OpenMapRelease::Position& position) {
    asset.longitude = position.longitude;
    asset.latitude = position.latitude;
}

/// Whether the last report is of the same year as the facility's row or of a later one.
bool isUpToDate(const NpriParts& parts) {
    return parts.table == npriFacilities && parts.report != nullptr &&
           parts.report->lastYear >= parts.facility.year;
}

/// The facts of one GHGRP facility. Its labels end in `suffix`, which tells several apart.
class GhgrpFacts {
  public:
    GhgrpFacts(const FactWriter& facts, const GhgrpParts& parts, std::string suffix)
        : m_facts(facts), m_parts(parts), m_suffix(std::move(suffix)) {}

    void addEmissions() const {
        if (m_parts.facility != nullptr) {
            add(ghgrpFacilities,
                m_parts.facility->year,
                "Total emissions",
                m_parts.facility->emissions);
        }
        for (const int year : shownYears(m_parts)) {
            add(ghgrpTotals, std::to_string(year), "Total emissions", m_parts.totals->at(year));
        }
        if (m_parts.gases != nullptr) {
            const std::string year = std::to_string(m_parts.gases->year);
            add(ghgrpGases, year, "Carbon dioxide (CO2)", m_parts.gases->carbonDioxide);
            add(ghgrpGases, year, "Methane (CH4)", m_parts.gases->methane);
            add(ghgrpGases, year, "Nitrous oxide (N2O)", m_parts.gases->nitrousOxide);
        }
    }

    void addIndustry(const std::string& program) const {
        if (const GhgrpFacility* facility = m_parts.facility) {
            add(ghgrpFacilities, facility->year, "Industry" + program, facility->industry);
            const std::string code = "Industry code (NAICS";
            add(ghgrpFacilities,
                facility->year,
                code + (program.empty() ? ")" : ", GHGRP)"),
                facility->naics);
        }
    }

    void addNames() const {
        if (const GhgrpFacility* facility = m_parts.facility) {
            add(ghgrpFacilities, facility->year, "Facility name (GHGRP)", facility->name);
            add(ghgrpFacilities, facility->year, "Reporting company (GHGRP)", facility->company);
        }
    }

    void addIds() const {
        if (const GhgrpFacility* facility = m_parts.facility) {
            m_facts.add(ghgrpFacilities, facility->year, "GHGRP ID", m_parts.id);
            add(ghgrpFacilities, facility->year, "GHGRP facility page", facility->page);
        } else if (m_parts.totals != nullptr) {
            const std::string year = std::to_string(shownYears(m_parts).front());
            m_facts.add(ghgrpTotals, year, "GHGRP ID", m_parts.id);
        } else if (m_parts.gases != nullptr) {
            const std::string year = std::to_string(m_parts.gases->year);
            m_facts.add(ghgrpGases, year, "GHGRP ID", m_parts.id);
        }
        if (m_parts.petrinex != nullptr) {
            std::string codes;
            for (const std::string& code : m_parts.petrinex->codes) {
                codes += (codes.empty() ? "" : ", ") + code;
            }
            m_facts.add(ghgrpPetrinex, "Petrinex codes" + m_suffix, codes);
        }
    }

  private:
    void add(TableRole table,
             const std::string& period,
             const std::string& label,
             std::optional<std::string> value) const {
        m_facts.add(table, period, label + m_suffix, std::move(value));
    }

    const FactWriter& m_facts;
    const GhgrpParts& m_parts;
    std::string m_suffix;
};

std::vector<GhgrpFacts> factsOf(const NpriParts& parts, const FactWriter& facts) {
    std::vector<GhgrpFacts> list;
    for (const GhgrpParts& ghgrp : parts.ghgrp) {
        list.emplace_back(facts, ghgrp, parts.ghgrp.size() > 1 ? " of " + ghgrp.id : "");
    }
    return list;
}

void addIndustry(const NpriParts& parts, const std::string& period, const FactWriter& facts) {
    const NpriFacility& facility = parts.facility;
    if (parts.table == npriFacilities) {
        facts.add(npriFacilities, period, "Key industrial sector", facility.sector);
    } else {
        facts.add(npriSectors, "Key industrial sector", facility.sector);
    }
    const std::string label = "Industry code (NAICS)";
    if (facility.naics) {
        facts.add(npriFacilities, period, label, facility.naics);
    } else if (parts.years != nullptr) {
        facts.add(
            npriReportYears, std::to_string(parts.years->lastYear), label, parts.years->naics);
    }
}

/// What a newer report says of the facility itself.
void addLastReport(const NpriParts& parts, const std::string& period, const FactWriter& facts) {
    const bool isKnown =
        parts.report != nullptr || parts.years != nullptr || parts.releases != nullptr;
    if (isKnown) {
        const std::string year = std::to_string(parts.last.year());
        const std::string label = "Last report to the inventory";
        if (parts.last.table() == npriFacilities) {
            facts.add(npriFacilities, period, label, year);
        } else {
            facts.add(parts.last.table(), label, year);
        }
    }
    if (isUpToDate(parts)) {
        const std::string year = std::to_string(parts.report->lastYear);
        if (hasNewName(parts)) {
            facts.add(npriReports, year, "Name in the report for " + year, parts.report->name);
        }
        if (hasNewCompany(parts)) {
            facts.add(
                npriReports, year, "Company in the report for " + year, parts.report->company);
        }
    }
}

void addReleases(const NpriParts& parts, const FactWriter& facts) {
    if (parts.report != nullptr) {
        facts.add(npriReports, "Nitrogen oxides to air", parts.report->nitrogenOxides);
    }
    for (const GhgrpFacts& ghgrp : factsOf(parts, facts)) {
        ghgrp.addEmissions();
    }
    if (parts.releases != nullptr) {
        for (const NpriRelease& release : parts.releases->substances) {
            facts.add(npriReleases,
                      std::to_string(parts.releases->year),
                      "Released: " + release.substance,
                      release.quantity);
        }
    }
}

void addPlace(const NpriParts& parts,
              const std::string& period,
              const FactWriter& facts,
              const Citations& citations) {
    facts.add(parts.table, period, "City", parts.facility.city);
    facts.add(parts.table, period, "Land survey", parts.facility.landSurvey);
    const std::string label = "Location basis";
    if (parts.placedBy == npriFacilities) {
        facts.add(npriFacilities, period, label, "NPRI facility table for " + period);
    } else {
        facts.add(parts.placedBy,
                  label,
                  (parts.placedBy == npriLocations ? "NPRI location list of "
                                                   : "NPRI table of nitrogen oxides for ") +
                      citations.at(parts.placedBy).period);
    }
}

} // namespace

std::vector<int> shownYears(const GhgrpParts& parts) {
    constexpr int firstYear = 2017;
    std::vector<int> years;
    if (parts.totals == nullptr) {
        return years;
    }
    const std::string known = parts.facility == nullptr ? "" : parts.facility->year;
    for (const auto& [year, total] : *parts.totals) {
        if (year >= firstYear && std::to_string(year) != known) {
            years.push_back(year);
        }
    }
    if (years.empty()) {
        years.push_back(parts.totals->rbegin()->first);
    }
    std::ranges::reverse(years);
    return years;
}

bool hasNewCompany(const NpriParts& parts) {
    return isUpToDate(parts) && parts.report->company &&
           !isSameName(*parts.report->company, parts.facility.company.value_or(""));
}

bool hasNewName(const NpriParts& parts) {
    return isUpToDate(parts) && !isSameName(parts.report->name, parts.facility.name);
}

OpenMapRelease::Asset npriRecord(const NpriParts& parts, const Citations& citations) {
    OpenMapRelease::Asset asset;
    const std::string period = std::to_string(parts.facility.year);
    asset.id = "NPRI-" + parts.facility.id;
    asset.name = parts.facility.name;
    asset.jurisdiction = parts.facility.province;
    asset.sourceID = citations.at(parts.table).sourceID;
    asset.status = parts.last.status();
    asset.asOf = period;
    asset.reportedCompany = parts.facility.company;
    place(asset, parts.position);

    const FactWriter facts(asset, citations);
    addIndustry(parts, period, facts);
    for (const GhgrpFacts& ghgrp : factsOf(parts, facts)) {
        ghgrp.addIndustry(" (GHGRP)");
    }
    addLastReport(parts, period, facts);
    addReleases(parts, facts);
    addPlace(parts, period, facts, citations);
    facts.add(parts.table, period, "NPRI ID", parts.facility.id);
    for (const GhgrpFacts& ghgrp : factsOf(parts, facts)) {
        ghgrp.addNames();
        ghgrp.addIds();
    }
    return asset;
}

OpenMapRelease::Asset ghgrpRecord(const GhgrpParts& parts, const Citations& citations) {
    const GhgrpFacility& facility = *parts.facility;
    OpenMapRelease::Asset asset;
    asset.id = "GHGRP-" + facility.id;
    asset.name = facility.name;
    asset.jurisdiction = facility.province;
    asset.sourceID = citations.at(ghgrpFacilities).sourceID;
    asset.status = "Reported for " + facility.year;
    asset.asOf = facility.year;
    asset.reportedCompany = facility.company;
    place(asset, facility.position.value());

    const FactWriter facts(asset, citations);
    const GhgrpFacts ghgrp(facts, parts, "");
    ghgrp.addIndustry("");
    ghgrp.addEmissions();
    facts.add(ghgrpFacilities, facility.year, "City", facility.city);
    facts.add(ghgrpFacilities,
              facility.year,
              "Location basis",
              "GHGRP facility table for " + facility.year);
    ghgrp.addIds();
    return asset;
}

FacilityTraits traitsOf(const NpriParts& parts) {
    FacilityTraits traits{{parts.facility.name}, {}, parts.facility.sectorCode, {}};
    if (isUpToDate(parts)) {
        traits.names.push_back(parts.report->name);
    }
    if (parts.facility.naics) {
        traits.naics.push_back(*parts.facility.naics);
    } else if (parts.years != nullptr && parts.years->naics) {
        traits.naics.push_back(*parts.years->naics);
    }
    for (const GhgrpParts& ghgrp : parts.ghgrp) {
        const FacilityTraits other = traitsOf(ghgrp);
        traits.names.insert(traits.names.end(), other.names.begin(), other.names.end());
        traits.naics.insert(traits.naics.end(), other.naics.begin(), other.naics.end());
        for (const std::string_view type : other.petrinex) {
            if (std::ranges::find(traits.petrinex, type) == traits.petrinex.end()) {
                traits.petrinex.push_back(type);
            }
        }
    }
    return traits;
}

FacilityTraits traitsOf(const GhgrpParts& parts) {
    FacilityTraits traits;
    if (parts.facility != nullptr) {
        traits.names.push_back(parts.facility->name);
        traits.naics.push_back(parts.facility->naics);
    }
    if (parts.petrinex != nullptr) {
        traits.petrinex.assign(parts.petrinex->types.begin(), parts.petrinex->types.end());
    }
    return traits;
}

} // namespace vasker
