#pragma once
// Facts added to a record, each with its source and period.

#include "data/OpenMapRelease.h"
#include "tools/openmap-release/packing/Citations.h"
#include "tools/openmap-release/packing/tables/FactList.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vasker {

class FactWriter {
  public:
    FactWriter(OpenMapRelease::Asset& asset, const Citations& citations)
        : m_asset(asset), m_citations(citations) {}

    /// Adds nothing where there is no value.
    void add(TableRole table,
             const std::string& period,
             std::string label,
             std::optional<std::string> value) const {
        if (value) {
            m_asset.facts.push_back(
                {std::move(label), std::move(*value), m_citations.at(table).sourceID, period});
        }
    }
    /// With the period that the table's description gives.
    void add(TableRole table, std::string label, std::optional<std::string> value) const {
        add(table, m_citations.at(table).period, std::move(label), std::move(value));
    }
    void add(TableRole table, const std::vector<ReportedFact>& facts) const {
        for (const ReportedFact& fact : facts) {
            add(table, fact.label, fact.value);
        }
    }

  private:
    OpenMapRelease::Asset& m_asset;
    const Citations& m_citations;
};

} // namespace vasker
