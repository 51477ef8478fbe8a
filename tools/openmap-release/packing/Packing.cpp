#include "tools/openmap-release/packing/Packing.h"

#include "data/Digest.h"
#include "tools/openmap-release/packing/RecordAssembly.h"

#include <algorithm>
#include <set>
#include <utility>

namespace vasker {
namespace {

CsvTable table(std::string_view file, const std::string& bytes) {
    return {std::string(file), bytes};
}

SourceIds sourceIds(const PackInput& input) {
    return {sha256(input.npriFacilities),
            sha256(input.npriLocations),
            sha256(input.ghgrpFacilities),
            sha256(input.oilPipelines),
            sha256(input.gasPipelines),
            sha256(input.terminals)};
}

using FacilitiesByNpriId = std::map<std::string, std::vector<const GhgrpFacility*>, std::less<>>;

/// Puts the tables together, one after the other; what happens to each row is counted.
class Compilation {
  public:
    explicit Compilation(const PackInput& input) : m_input(input), m_ids(sourceIds(input)) {}

    Packed run(const std::string& generatedAt) {
        addFacilities();
        addTerminals();
        addPipelines(readOilPipelines(table(inputfile::oilPipelines, m_input.oilPipelines)),
                     {m_input.oilRoutes,
                      inputfile::oilRoutes,
                      m_ids.oilPipelines,
                      period::oilPipelines,
                      m_packed.tally.oil});
        addPipelines(readGasPipelines(table(inputfile::gasPipelines, m_input.gasPipelines)),
                     {m_input.gasRoutes,
                      inputfile::gasRoutes,
                      m_ids.gasPipelines,
                      period::gasPipelines,
                      m_packed.tally.gas});
        describe(generatedAt);
        return std::move(m_packed);
    }

  private:
    struct PipelineInput {
        const std::map<std::string, std::string, std::less<>>& routes;
        std::string_view folder;
        const std::string& sourceID;
        std::string_view period;
        PackTally::Pipelines& tally;
    };

    void addFacilities() {
        const auto npri =
            readNpriFacilities(table(inputfile::npriFacilities, m_input.npriFacilities));
        const auto ghgrp =
            readGhgrpFacilities(table(inputfile::ghgrpFacilities, m_input.ghgrpFacilities));
        const FacilitiesByNpriId same = facilitiesByNpriId(placed(npri), ghgrp);
        addNpri(npri, same);
        addGhgrp(ghgrp);
    }

    /// The NPRI facilities with their places; one without is counted and left out.
    std::map<std::string, NpriPlacement, std::less<>>&
    placed(const std::vector<NpriFacility>& facilities) {
        const auto list = readNpriLocations(table(inputfile::npriLocations, m_input.npriLocations));
        for (const NpriFacility& facility : facilities) {
            using Basis = NpriPlacement::Basis;
            if (const auto listed = list.find(facility.id); listed != list.end()) {
                m_placements.emplace(facility.id,
                                     NpriPlacement{listed->second, Basis::locationList});
                ++m_packed.tally.npriListPositions;
            } else if (facility.position) {
                m_placements.emplace(facility.id,
                                     NpriPlacement{*facility.position, Basis::facilityTable});
                ++m_packed.tally.npriTablePositions;
            } else {
                m_packed.tally.npri.withoutPosition.push_back(facility.id);
            }
        }
        return m_placements;
    }

    /// Which GHGRP facilities are an NPRI record that we hold, in the order of their table.
    FacilitiesByNpriId
    facilitiesByNpriId(const std::map<std::string, NpriPlacement, std::less<>>& held,
                       const std::vector<GhgrpFacility>& facilities) {
        const auto links = readFacilityLinks(table(inputfile::ghgrpHistory, m_input.ghgrpHistory));
        PackTally& tally = m_packed.tally;
        FacilitiesByNpriId same;
        for (const GhgrpFacility& facility : facilities) {
            const auto link = links.find(facility.id);
            if (link == links.end() || !held.contains(link->second.npriId)) {
                continue;
            }
            same[link->second.npriId].push_back(&facility);
            m_merged.insert(facility.id);
            tally.ghgrpMerged.push_back(facility.id);
            if (link->second.hasChanged) {
                tally.changedLinks.push_back(facility.id);
            }
        }
        tally.npriRecordsWithGhgrp = same.size();
        for (const auto& [id, several] : same) {
            if (several.size() > 1) {
                tally.npriWithSeveralGhgrp.push_back("NPRI-" + id);
            }
        }
        return same;
    }

    void addNpri(const std::vector<NpriFacility>& facilities, const FacilitiesByNpriId& same) {
        for (const NpriFacility& facility : facilities) {
            const auto placement = m_placements.find(facility.id);
            if (placement == m_placements.end()) {
                continue;
            }
            const auto others = same.find(facility.id);
            m_packed.release.assets.push_back(npriRecord(
                facility,
                placement->second,
                others == same.end() ? std::span<const GhgrpFacility* const>() : others->second,
                m_ids));
            ++m_packed.tally.npri.taken;
        }
    }

    void addGhgrp(const std::vector<GhgrpFacility>& facilities) {
        PackTally& tally = m_packed.tally;
        for (const GhgrpFacility& facility : facilities) {
            if (m_merged.contains(facility.id)) {
                continue;
            }
            if (!isEnergyIndustry(facility.naics)) {
                ++tally.ghgrpOtherIndustries;
            } else if (!facility.position) {
                tally.ghgrp.withoutPosition.push_back(facility.id);
            } else {
                m_packed.release.assets.push_back(ghgrpRecord(facility, m_ids));
                ++tally.ghgrp.taken;
            }
        }
    }

    void addTerminals() {
        PackTally::Facilities& tally = m_packed.tally.terminals;
        for (const GemTerminal& terminal :
             readTerminals(table(inputfile::terminals, m_input.terminals))) {
            if (!terminal.position) {
                tally.withoutPosition.push_back(terminal.id);
                continue;
            }
            m_packed.release.assets.push_back(terminalRecord(terminal, m_ids));
            ++tally.taken;
        }
    }

    void addPipelines(const std::vector<GemPipeline>& pipelines, const PipelineInput& input) {
        const auto insideCanada = routesInsideCanada();
        std::set<std::string, std::less<>> known;
        for (const GemPipeline& pipeline : pipelines) {
            known.insert(pipeline.id);
            RouteFile file = routesOf(pipeline.id, input);
            if (file.routes.empty()) {
                input.tally.withoutGeometry.push_back(pipeline.id);
            } else if (!insideCanada.contains(pipeline.id)) {
                input.tally.outsideCanada.push_back(pipeline.id);
            } else {
                note(pipeline.id, file, input.tally);
                m_packed.release.assets.push_back(
                    pipelineRecord(pipeline, std::move(file), input.sourceID, input.period));
                ++input.tally.taken;
            }
        }
        for (const auto& [id, json] : input.routes) {
            if (!known.contains(id)) {
                input.tally.unknownRoutes.push_back(id);
            }
        }
    }

    static RouteFile routesOf(const std::string& id, const PipelineInput& input) {
        const auto found = input.routes.find(id);
        if (found == input.routes.end()) {
            return {};
        }
        return readRouteFile(std::string(input.folder) + "/" + id + ".geojson", found->second);
    }

    static void note(const std::string& id, const RouteFile& file, PackTally::Pipelines& tally) {
        tally.withStrayPoints.insert(tally.withStrayPoints.end(), file.strayPoints, id);
        tally.withLoneVertex.insert(tally.withLoneVertex.end(), file.loneVertices, id);
        if (file.thirdCoordinates > 0) {
            tally.withThirdCoordinate.push_back(id);
        }
    }

    /// The project ids whose geometry has at least one vertex inside Canada.
    [[nodiscard]] std::set<std::string, std::less<>> routesInsideCanada() const {
        const CsvTable index = table(inputfile::routeIndex, m_input.routeIndex);
        index.requireColumns({"ProjectID", "vertices_inside_Canada_incl_EEZ"});
        std::set<std::string, std::less<>> ids;
        for (const CsvTable::Row& cells : index.rows()) {
            const RowReader row(index, cells);
            const std::string vertices = row.requiredDigits("vertices_inside_Canada_incl_EEZ");
            if (vertices.find_first_not_of('0') != std::string::npos) {
                ids.insert(row.requiredText("ProjectID"));
            }
        }
        return ids;
    }

    /// The release's own fields; of the sources those that a record or a fact cites.
    void describe(const std::string& generatedAt) {
        OpenMapRelease& release = m_packed.release;
        release.releaseID = "canada-energy-" + generatedAt.substr(0, 7);
        release.generatedAt = generatedAt;
        release.coverageName = coverageName;
        release.limitations = limitations();
        std::set<std::string, std::less<>> cited;
        for (const OpenMapRelease::Asset& asset : release.assets) {
            cited.insert(asset.sourceID);
            for (const OpenMapRelease::Fact& fact : asset.facts) {
                cited.insert(fact.sourceID);
            }
        }
        release.sources = sources(m_ids, m_packed.tally);
        std::erase_if(release.sources, [&](const OpenMapRelease::Source& source) {
            return !cited.contains(source.id);
        });
    }

    const PackInput& m_input;
    SourceIds m_ids;
    std::map<std::string, NpriPlacement, std::less<>> m_placements;
    std::set<std::string, std::less<>> m_merged;
    Packed m_packed;
};

} // namespace

Packed packRelease(const PackInput& input, const std::string& generatedAt) {
    return Compilation(input).run(generatedAt);
}

} // namespace vasker
