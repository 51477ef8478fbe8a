#include "tools/openmap-release/packing/tables/GemPipelines.h"

#include "tools/openmap-release/packing/tables/Provinces.h"
#include "tools/openmap-release/packing/tables/UniqueIds.h"

namespace vasker {
namespace {

GemPipeline startOf(const RowReader& row) {
    GemPipeline pipeline;
    pipeline.id = row.requiredText("ProjectID");
    pipeline.name = row.requiredText("PipelineName");
    pipeline.status = row.requiredText("Status");
    pipeline.owner = row.text("Owner");
    return pipeline;
}

void addIdentity(FactList& facts, const RowReader& row) {
    facts.add("Reported unit", row.text("SegmentName"));
    facts.add("Fuel", row.text("Fuel"));
    facts.add("Owner", row.text("Owner"));
    facts.add("Parent", row.text("Parent"));
    facts.add("Capacity", row.quantity("Capacity", row.text("CapacityUnits").value_or("")));
}

void addSize(FactList& facts, const RowReader& row) {
    if (row.text("LengthKnownKm")) {
        facts.add("Length", row.quantity("LengthKnownKm", "km"));
    } else {
        facts.add("Length, estimated", row.quantity("LengthEstimateKm", "km"));
    }
    if (const auto diameter = row.text("Diameter")) {
        const std::string unit = row.text("DiameterUnits").value_or("");
        facts.add("Diameter", unit.empty() ? *diameter : *diameter + " " + unit);
    }
}

void addYears(FactList& facts, const RowReader& row) {
    facts.add("Start year", row.joined({"StartYear1", "StartYear2", "StartYear3"}));
    facts.add("Shelved year", row.text("ShelvedYear"));
    facts.add("Cancelled year", row.text("CancelledYear"));
    facts.add("Stop year", row.text("StopYear"));
}

void addRecord(FactList& facts, const RowReader& row) {
    facts.add("Route accuracy", row.text("RouteAccuracy"));
    facts.add("GEM project ID", row.text("ProjectID"));
    facts.add("GEM wiki page", row.text("Wiki"));
    facts.add("Last updated", row.text("LastUpdated"));
}

GemPipeline readOilPipeline(const RowReader& row) {
    GemPipeline pipeline = startOf(row);
    // This table has the province of one end only, which does not tell where the line lies.
    pipeline.jurisdiction = row.requiredText("Countries");
    FactList facts;
    addIdentity(facts, row);
    addSize(facts, row);
    facts.add("Start", row.joined({"StartLocation", "StartPrefecture/District", "StartCountry"}));
    facts.add(
        "End",
        row.joined({"EndLocation", "EndPrefecture/District", "EndState/Province", "EndCountry"}));
    facts.add("Fuel source", row.text("FuelSource"));
    facts.add("Proposal year", row.text("ProposalYear"));
    facts.add("Construction year", row.text("ConstructionYear"));
    addYears(facts, row);
    facts.add("Cost", row.quantity("Cost", row.text("CostUnits").value_or("")));
    addRecord(facts, row);
    pipeline.facts = std::move(facts).take();
    return pipeline;
}

/// The provinces of both ends where the line stays in one country; else what the table calls it.
std::string gasJurisdiction(const RowReader& row) {
    std::string countries = row.requiredText("CountriesOrAreas");
    const std::string start = row.text("StartState/Province").value_or("");
    const std::string end = row.text("EndState/Province").value_or("");
    if (countries != "Canada" || !isProvince(start) || !isProvince(end)) {
        return countries;
    }
    return start == end ? start : start + ", " + end;
}

GemPipeline readGasPipeline(const RowReader& row) {
    GemPipeline pipeline = startOf(row);
    pipeline.jurisdiction = gasJurisdiction(row);
    FactList facts;
    addIdentity(facts, row);
    addSize(facts, row);
    facts.add("Start",
              row.joined({"StartLocation",
                          "StartPrefecture/District",
                          "StartState/Province",
                          "StartCountryOrArea"}));
    facts.add(
        "End",
        row.joined(
            {"EndLocation", "EndPrefecture/District", "EndState/Province", "EndCountryOrArea"}));
    facts.add("Fuel source", row.text("FuelSource"));
    addYears(facts, row);
    facts.add("Investment decision", row.joined({"FIDStatus", "FIDYear"}));
    facts.add("Cost", row.quantity("CostUSD", "USD"));
    facts.add("Also known as", row.text("OtherEnglishNames"));
    addRecord(facts, row);
    pipeline.facts = std::move(facts).take();
    return pipeline;
}

} // namespace

std::vector<GemPipeline> readOilPipelines(const CsvTable& table) {
    return readUnique(table, "ProjectID", readOilPipeline);
}

std::vector<GemPipeline> readGasPipelines(const CsvTable& table) {
    return readUnique(table, "ProjectID", readGasPipeline);
}

} // namespace vasker
