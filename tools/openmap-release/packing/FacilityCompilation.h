#pragma once
// The records of the facilities of the two federal programs: which rows become records, which are
// one facility, which are left out, and which category each has.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/packing/Description.h"
#include "tools/openmap-release/packing/FacilityRecords.h"
#include "tools/openmap-release/packing/FacilityTables.h"

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

class FacilityCompilation {
  public:
    /// Reads the tables of both programs and counts what is left out of them. All arguments live as
    /// long. Throws InputError.
    FacilityCompilation(const Description& description,
                        const PackTables& tables,
                        const Citations& citations,
                        PackTally& tally);

    /// The records: the facility table's, then those that only the newer reports have, then those
    /// of the Greenhouse Gas Reporting Program that are none of them. Counts what happens to each
    /// row; to be called once.
    [[nodiscard]] std::vector<OpenMapRelease::Asset> records();
    /// How many records each rule took; the first element is rule 1.
    [[nodiscard]] const std::vector<std::size_t>& recordsByRule() const { return m_recordsByRule; }

  private:
    /// The NPRI facilities with a position, the facility table's first.
    [[nodiscard]] std::vector<NpriParts> npriParts();
    [[nodiscard]] std::optional<NpriParts> partsOf(NpriFacility facility, TableRole table);
    [[nodiscard]] std::optional<NpriFacility> selected(const std::string& id,
                                                       const NpriReport& report) const;
    [[nodiscard]] LastReport lastReportOf(const NpriParts& parts) const;
    void joinGhgrp(std::vector<NpriParts>& npri);
    [[nodiscard]] GhgrpParts ghgrpParts(const std::string& id) const;
    void addNpri(const NpriParts& parts, std::vector<OpenMapRelease::Asset>& records);
    void addGhgrp(std::vector<OpenMapRelease::Asset>& records);
    void count(const NpriParts& parts);
    void count(const GhgrpParts& parts);
    void countUnused();
    [[nodiscard]] const std::string& kindOf(const FacilityTraits& traits);

    const Description& m_description;
    const Citations& m_citations;
    PackTally& m_tally;
    const FacilityTables m_tables;
    std::map<std::string, const GhgrpFacility*, std::less<>> m_ghgrpById;
    std::set<std::string, std::less<>> m_joined; ///< GHGRP ids that are part of an NPRI record
    std::map<TableRole, std::size_t> m_used;     ///< how many rows of each table stand in a record
    std::vector<std::size_t> m_recordsByRule;
};

} // namespace vasker
