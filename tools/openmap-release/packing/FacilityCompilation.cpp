#include "tools/openmap-release/packing/FacilityCompilation.h"

#include <algorithm>
#include <utility>

namespace vasker {
namespace {

using enum TableRole;
using enum PackStep;

template <typename Map>
auto* pointerTo(Map& map, std::string_view id) {
    const auto found = map.find(id);
    return found == map.end() ? nullptr : &found->second;
}

} // namespace

FacilityCompilation::FacilityCompilation(const Description& description,
                                         const PackTables& tables,
                                         const Citations& citations,
                                         PackTally& tally)
    : m_description(description), m_citations(citations), m_tally(tally),
      m_tables(readFacilityTables(tables, citations, tally)),
      m_recordsByRule(description.categories.size()) {
    for (const GhgrpFacility& facility : m_tables.ghgrp) {
        m_ghgrpById.emplace(facility.id, &facility);
    }
}

std::vector<OpenMapRelease::Asset> FacilityCompilation::records() {
    std::vector<NpriParts> npri = npriParts();
    joinGhgrp(npri);
    std::vector<OpenMapRelease::Asset> records;
    for (const NpriParts& parts : npri) {
        addNpri(parts, records);
    }
    addGhgrp(records);
    countUnused();
    return records;
}

std::vector<NpriParts> FacilityCompilation::npriParts() {
    std::vector<NpriParts> all;
    std::set<std::string, std::less<>> known;
    for (const NpriFacility& facility : m_tables.npri) {
        known.insert(facility.id);
        if (auto parts = partsOf(facility, npriFacilities)) {
            all.push_back(std::move(*parts));
        }
    }
    for (const auto& [id, report] : m_tables.reports) {
        if (known.contains(id)) {
            continue;
        }
        const std::optional<NpriFacility> facility = selected(id, report);
        if (report.lastYear < m_tables.reportsUntil) {
            m_tally.add(
                npriReports,
                dropped,
                "rows of facilities that the facility table lacks and that reported before");
        } else if (!facility) {
            m_tally.add(npriReports, dropped, "rows of other industries", id);
        } else if (auto parts = partsOf(*facility, npriReports)) {
            all.push_back(std::move(*parts));
        }
    }
    return all;
}

std::optional<NpriFacility> FacilityCompilation::selected(const std::string& id,
                                                          const NpriReport& report) const {
    const NpriReportYears* years = pointerTo(m_tables.years, id);
    const std::string* sector = pointerTo(m_tables.sectors, id);
    const bool isSelected =
        (years != nullptr && m_description.isSelectedIndustry(years->naics.value_or(""))) ||
        (sector != nullptr && m_description.isSelectedSector(*sector));
    if (!isSelected) {
        return std::nullopt;
    }
    NpriFacility facility;
    facility.id = id;
    facility.year = report.lastYear;
    facility.name = report.name;
    facility.province = report.province;
    facility.company = report.company;
    facility.city = report.city;
    facility.position = report.position;
    if (sector != nullptr && !sector->empty()) {
        facility.sectorCode = *sector;
        const auto named = std::ranges::find_if(m_tables.npri, [&](const NpriFacility& other) {
            return other.sectorCode == *sector && other.sector;
        });
        facility.sector = named == m_tables.npri.end() ? std::nullopt : named->sector;
    }
    return facility;
}

std::optional<NpriParts> FacilityCompilation::partsOf(NpriFacility facility, TableRole table) {
    NpriParts parts;
    const std::string& id = facility.id;
    if (const auto* listed = pointerTo(m_tables.locations, id)) {
        parts.position = *listed;
        parts.placedBy = npriLocations;
    } else if (facility.position) {
        parts.position = *facility.position;
        parts.placedBy = table;
    } else {
        m_tally.add(table, dropped, "rows without a position", id);
        return std::nullopt;
    }
    parts.table = table;
    parts.report = pointerTo(m_tables.reports, id);
    parts.years = pointerTo(m_tables.years, id);
    parts.releases = pointerTo(m_tables.releases, id);
    parts.facility = std::move(facility);
    parts.last = lastReportOf(parts);
    return parts;
}

LastReport FacilityCompilation::lastReportOf(const NpriParts& parts) const {
    LastReport last;
    if (parts.report != nullptr) {
        last.add(npriReports, parts.report->lastYear, m_tables.reportsUntil);
    }
    if (parts.years != nullptr) {
        last.add(npriReportYears, parts.years->lastYear, m_tables.yearsUntil);
    }
    if (parts.releases != nullptr) {
        last.add(npriReleases, parts.releases->year, m_tables.releasesUntil);
    }
    last.add(parts.table, parts.facility.year, parts.facility.year);
    return last;
}

void FacilityCompilation::joinGhgrp(std::vector<NpriParts>& npri) {
    std::map<std::string_view, NpriParts*> held;
    for (NpriParts& parts : npri) {
        held.emplace(parts.facility.id, &parts);
    }
    for (const auto& [id, link] : m_tables.links) {
        const auto found = held.find(link.npriId);
        const GhgrpParts ghgrp = ghgrpParts(id);
        const bool hasValues =
            ghgrp.facility != nullptr || ghgrp.totals != nullptr || ghgrp.gases != nullptr;
        if (found == held.end() || !hasValues) {
            continue;
        }
        found->second->ghgrp.push_back(ghgrp);
        m_joined.insert(id);
        if (link.hasChanged) {
            m_tally.add(
                ghgrpFacilities, noted, "facilities whose NPRI id changed, the latest counts", id);
        }
    }
}

GhgrpParts FacilityCompilation::ghgrpParts(const std::string& id) const {
    const auto* row = pointerTo(m_ghgrpById, id);
    return {id,
            row == nullptr ? nullptr : *row,
            pointerTo(m_tables.totals, id),
            pointerTo(m_tables.gases, id),
            pointerTo(m_tables.petrinex, id)};
}

void FacilityCompilation::addNpri(const NpriParts& parts,
                                  std::vector<OpenMapRelease::Asset>& records) {
    OpenMapRelease::Asset& record = records.emplace_back(npriRecord(parts, m_citations));
    record.kind = kindOf(traitsOf(parts));
    count(parts);
    for (const GhgrpParts& ghgrp : parts.ghgrp) {
        if (ghgrp.facility != nullptr) {
            m_tally.add(ghgrpFacilities, joined, "rows joined to an NPRI record");
        } else {
            m_tally.add(ghgrpTotals,
                        joined,
                        "facilities that the newest table lacks, joined to an NPRI record",
                        ghgrp.id);
        }
        count(ghgrp);
    }
    if (parts.ghgrp.size() > 1) {
        m_tally.add(ghgrpFacilities, noted, "records with several facilities", record.id);
    }
}

void FacilityCompilation::addGhgrp(std::vector<OpenMapRelease::Asset>& records) {
    for (const GhgrpFacility& facility : m_tables.ghgrp) {
        if (m_joined.contains(facility.id)) {
            continue;
        }
        if (!m_description.isSelectedIndustry(facility.naics)) {
            m_tally.add(ghgrpFacilities, dropped, "rows of other industries");
        } else if (!facility.position) {
            m_tally.add(ghgrpFacilities, dropped, "rows without a position", facility.id);
        } else {
            const GhgrpParts parts = ghgrpParts(facility.id);
            records.push_back(ghgrpRecord(parts, m_citations));
            records.back().kind = kindOf(traitsOf(parts));
            m_tally.add(ghgrpFacilities, taken, "rows as records of their own");
            count(parts);
        }
    }
}

void FacilityCompilation::count(const NpriParts& parts) {
    m_tally.add(parts.table, taken, "rows as records");
    if (parts.placedBy == npriLocations) {
        ++m_used[npriLocations];
        m_tally.add(npriLocations, taken, "positions of records");
    } else {
        m_tally.add(parts.placedBy, noted, "records with this table's position");
    }
    if (parts.report != nullptr && parts.table == npriFacilities) {
        m_tally.add(npriReports, joined, "rows joined to a record of the facility table");
        if (parts.report->lastYear < parts.facility.year) {
            m_tally.add(npriReports,
                        dropped,
                        "names and companies of reports older than the facility table's");
        }
    }
    if (hasNewName(parts)) {
        m_tally.add(npriReports, taken, "names that differ from the facility table's");
    }
    if (hasNewCompany(parts)) {
        m_tally.add(npriReports, taken, "companies that differ from the facility table's");
    }
    if (parts.years != nullptr) {
        ++m_used[npriReportYears];
        if (!parts.facility.naics && parts.years->naics) {
            m_tally.add(npriReportYears, taken, "industry codes of records without one");
        }
    }
    if (parts.table == npriReports && parts.facility.sector) {
        m_tally.add(npriSectors, taken, "sectors of records without one");
        ++m_used[npriSectors];
    }
    if (parts.releases != nullptr) {
        m_tally.add(npriReleases, taken, "facilities with their releases");
        ++m_used[npriReleases];
    }
}

void FacilityCompilation::count(const GhgrpParts& parts) {
    const std::vector<int> years = shownYears(parts);
    m_tally.add(ghgrpTotals, taken, "totals", years.size());
    if (parts.totals != nullptr) {
        m_tally.add(
            ghgrpTotals, dropped, "totals of earlier years", parts.totals->size() - years.size());
        ++m_used[ghgrpTotals];
    }
    if (parts.gases != nullptr) {
        m_tally.add(ghgrpGases, taken, "facilities with their gases");
        ++m_used[ghgrpGases];
    }
    if (parts.petrinex != nullptr) {
        m_tally.add(ghgrpPetrinex, taken, "codes", parts.petrinex->codes.size());
        ++m_used[ghgrpPetrinex];
    }
}

void FacilityCompilation::countUnused() {
    const auto unused = [&](TableRole table, std::size_t facilities) {
        m_tally.add(table, dropped, "facilities that are no record", facilities - m_used[table]);
    };
    unused(npriLocations, m_tables.locations.size());
    unused(npriReportYears, m_tables.years.size());
    unused(npriSectors, m_tables.sectors.size());
    unused(npriReleases, m_tables.releases.size());
    unused(ghgrpTotals, m_tables.totals.size());
    unused(ghgrpGases, m_tables.gases.size());
    unused(ghgrpPetrinex, m_tables.petrinex.size());
}

const std::string& FacilityCompilation::kindOf(const FacilityTraits& traits) {
    const std::size_t number = m_description.categories.find(traits);
    ++m_recordsByRule[number - 1];
    return m_description.categories.rule(number)->kind;
}

} // namespace vasker
