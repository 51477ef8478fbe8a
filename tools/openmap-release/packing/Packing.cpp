#include "tools/openmap-release/packing/Packing.h"

#include "data/Digest.h"
#include "tools/openmap-release/packing/FacilityCompilation.h"
#include "tools/openmap-release/packing/GemRecords.h"
#include "tools/openmap-release/packing/PackTables.h"
#include "tools/openmap-release/packing/tables/RowReader.h"

#include <set>
#include <utility>

namespace vasker {
namespace {

using enum PackStep;

std::set<std::string, std::less<>> routesInsideCanada(const CsvTable& index) {
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

/// What of a route file is left out.
void note(const std::string& id, const RouteFile& file, TableRole table, PackTally& tally) {
    for (std::size_t point = 0; point < file.strayPoints; ++point) {
        tally.add(table, dropped, "stray points among lines", id);
    }
    for (std::size_t line = 0; line < file.loneVertices; ++line) {
        tally.add(table, dropped, "lines of fewer than two vertices", id);
    }
    if (file.thirdCoordinates > 0) {
        tally.add(table, corrected, "pipelines whose third coordinate was left out", id);
    }
}

/// Puts the tables together, one after the other; what happens to each row is counted.
class Compilation {
  public:
    explicit Compilation(const PackInput& input)
        : m_input(input), m_tables(input, m_packed.tally), m_citations(m_tables.citations()) {}

    Packed run(const std::string& generatedAt) {
        addFacilities();
        addTerminals();
        addPipelines(TableRole::oilPipelines, readOilPipelines);
        addPipelines(TableRole::gasPipelines, readGasPipelines);
        describe(generatedAt);
        return std::move(m_packed);
    }

  private:
    using PipelineReader = std::vector<GemPipeline> (*)(const CsvTable&);

    void addFacilities() {
        FacilityCompilation facilities(m_input.description, m_tables, m_citations, m_packed.tally);
        m_packed.release.assets = facilities.records();
        m_packed.recordsByRule = facilities.recordsByRule();
    }

    void addTerminals() {
        for (const GemTerminal& terminal : readTerminals(*m_tables.find(TableRole::terminals))) {
            if (!terminal.position) {
                m_packed.tally.add(
                    TableRole::terminals, dropped, "rows without a position", terminal.id);
                continue;
            }
            m_packed.release.assets.push_back(terminalRecord(terminal, m_citations));
            m_packed.tally.add(TableRole::terminals, taken, "rows as records");
        }
    }

    void addPipelines(TableRole table, PipelineReader read) {
        const auto insideCanada = routesInsideCanada(*m_tables.find(TableRole::routeIndex));
        PackTally& tally = m_packed.tally;
        std::set<std::string, std::less<>> known;
        for (const GemPipeline& pipeline : read(*m_tables.find(table))) {
            known.insert(pipeline.id);
            RouteFile file = routesOf(pipeline.id, table);
            if (file.routes.empty()) {
                tally.add(table, dropped, "rows without a geometry", pipeline.id);
            } else if (!insideCanada.contains(pipeline.id)) {
                tally.add(table, dropped, "rows with no vertex inside Canada", pipeline.id);
            } else {
                note(pipeline.id, file, table, tally);
                m_packed.release.assets.push_back(
                    pipelineRecord(pipeline,
                                   std::move(file),
                                   table,
                                   m_input.description.table(table)->routesPeriod,
                                   m_citations));
                tally.add(table, taken, "rows as records");
            }
        }
        for (const auto& [id, json] : m_input.routes.at(table)) {
            if (!known.contains(id)) {
                tally.add(table, dropped, "route files that no row names", id);
            }
        }
    }

    [[nodiscard]] RouteFile routesOf(const std::string& id, TableRole table) const {
        const auto& files = m_input.routes.at(table);
        const auto found = files.find(id);
        if (found == files.end()) {
            return {};
        }
        const std::string& folder = m_input.description.table(table)->routes;
        return readRouteFile(folder + "/" + id + ".geojson", found->second);
    }

    /// The release's own fields; of the sources those that a record or a fact cites.
    void describe(const std::string& generatedAt) {
        OpenMapRelease& release = m_packed.release;
        const Description& description = m_input.description;
        release.releaseID = description.releaseID + "-" + generatedAt.substr(0, 7);
        release.generatedAt = generatedAt;
        release.coverageName = description.coverageName;
        release.limitations = description.limitations;
        std::set<std::string, std::less<>> cited;
        for (const OpenMapRelease::Asset& asset : release.assets) {
            cited.insert(asset.sourceID);
            for (const OpenMapRelease::Fact& fact : asset.facts) {
                cited.insert(fact.sourceID);
            }
        }
        for (const TableRoleTraits& traits : tableRoles()) {
            const auto citation = m_citations.find(traits.role);
            if (citation == m_citations.end() || !cited.contains(citation->second.sourceID)) {
                continue;
            }
            OpenMapRelease::Source source = description.table(traits.role)->source;
            source.id = citation->second.sourceID;
            const std::string counted = m_packed.tally.summary(traits.role);
            source.modifications += counted.empty() ? "" : " " + counted;
            release.sources.push_back(std::move(source));
        }
    }

    const PackInput& m_input;
    Packed m_packed;
    PackTables m_tables;
    Citations m_citations;
};

} // namespace

Packed packRelease(const PackInput& input, const std::string& generatedAt) {
    return Compilation(input).run(generatedAt);
}

} // namespace vasker
