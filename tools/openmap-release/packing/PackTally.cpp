#include "tools/openmap-release/packing/PackTally.h"

#include <algorithm>
#include <string_view>

namespace vasker {
namespace {

constexpr std::size_t fewIds = 40;

class Report {
  public:
    void add(std::string_view what, std::size_t count, std::string_view things) {
        if (count == 0) {
            return;
        }
        std::string number = std::to_string(count);
        number.insert(0, number.size() < 6 ? 6 - number.size() : 0, ' ');
        std::string verb(what);
        verb.resize(8, ' ');
        m_text += verb + number + "  " + std::string(things) + "\n";
    }

    void
    add(std::string_view what, const std::vector<std::string>& ids, const std::string& things) {
        if (ids.size() > fewIds) {
            add(what, ids.size(), things);
            return;
        }
        std::string list;
        for (const std::string& id : ids) {
            list += (list.empty() ? ": " : ", ") + id;
        }
        add(what, ids.size(), things + list);
    }

    void addPipelines(const PackTally::Pipelines& pipelines, const std::string& which) {
        add("dropped", pipelines.withoutGeometry, which + " without a geometry");
        add("dropped", pipelines.outsideCanada, which + " with no vertex inside Canada");
        add("dropped", pipelines.withStrayPoints, "stray points among the lines of " + which);
        add("dropped", pipelines.withLoneVertex, "lines of fewer than two vertices of " + which);
        add("dropped", pipelines.unknownRoutes, "route files that no row names, " + which);
        add("noted", pipelines.withThirdCoordinate, which + " whose third coordinate was left out");
    }

    [[nodiscard]] std::string take() && { return std::move(m_text); }

  private:
    std::string m_text;
};

} // namespace

std::string reportText(const PackTally& tally) {
    Report report;
    report.add("taken", tally.npri.taken, "NPRI facilities");
    report.add("taken", tally.ghgrp.taken, "GHGRP facilities as records of their own");
    report.add("taken", tally.terminals.taken, "LNG terminal units");
    report.add("taken", tally.oil.taken, "oil and NGL pipelines");
    report.add("taken", tally.gas.taken, "gas pipelines");
    report.add("merged",
               tally.ghgrpMerged.size(),
               "GHGRP facilities into " + std::to_string(tally.npriRecordsWithGhgrp) +
                   " NPRI records");
    report.add("dropped", tally.npri.withoutPosition, "NPRI facilities without a position");
    report.add("dropped", tally.ghgrpOtherIndustries, "GHGRP facilities of other industries");
    report.add("dropped", tally.ghgrp.withoutPosition, "GHGRP facilities without a position");
    report.add("dropped", tally.terminals.withoutPosition, "LNG terminal units without a position");
    report.addPipelines(tally.oil, "oil and NGL pipelines");
    report.addPipelines(tally.gas, "gas pipelines");
    report.add("noted", tally.npriListPositions, "NPRI records placed by the location list");
    report.add("noted", tally.npriTablePositions, "NPRI records placed by the facility table");
    report.add("noted", tally.npriWithSeveralGhgrp, "NPRI records with several GHGRP facilities");
    report.add("noted",
               tally.changedLinks,
               "GHGRP facilities whose NPRI id changed, the most recent counts");
    return std::move(report).take();
}

} // namespace vasker
