#include "tools/openmap-release/packing/tables/GemTerminals.h"

#include "tools/openmap-release/packing/tables/Provinces.h"
#include "tools/openmap-release/packing/tables/UniqueIds.h"

namespace vasker {
namespace {

std::string jurisdictionOf(const RowReader& row) {
    const std::optional<std::string> province = row.text("State/Province");
    if (!province) {
        return row.requiredText("Country/Area");
    }
    return row.requiredProvince("State/Province");
}

std::optional<std::string> capacityOf(const RowReader& row) {
    return row.quantity("Capacity", row.text("CapacityUnits").value_or(""));
}

GemTerminal readTerminal(const RowReader& row) {
    GemTerminal terminal;
    terminal.id = row.requiredText("UnitID");
    terminal.name = row.requiredText("TerminalName");
    terminal.status = row.requiredText("Status");
    terminal.jurisdiction = jurisdictionOf(row);
    terminal.owner = row.text("Owner");
    terminal.position = row.position("Latitude", "Longitude");

    FactList facts;
    facts.add("Reported unit", row.text("UnitName"));
    facts.add("Facility type", row.text("FacilityType"));
    facts.add("Capacity", capacityOf(row));
    facts.add("Owner", row.text("Owner"));
    facts.add("Parent", row.text("Parent"));
    facts.add("Operator", row.text("Operator"));
    facts.add("Location",
              row.joined({"Location", "Prefecture/District", "State/Province", "Country/Area"}));
    facts.add("Coordinate accuracy", row.text("Accuracy"));
    facts.add("Proposal year", row.text("ProposalYear"));
    facts.add("Construction year", row.text("ConstructionYear"));
    facts.add("Planned start year", row.text("LatestPlannedStartYear"));
    facts.add("Start year",
              row.joined({"ActualStartYear", "ActualStartYear2", "ActualStartYear3"}));
    facts.add("Shelved year", row.text("ShelvedYear"));
    facts.add("Cancelled year", row.text("CancelledYear"));
    facts.add("Stop year", row.text("StopYear"));
    facts.add("Investment decision", row.joined({"FIDStatus", "FIDYear"}));
    facts.add("Cost", row.quantity("Cost", row.text("CostUnits").value_or("")));
    facts.add("Also known as", row.joined({"OtherNames", "LocalNames"}));
    facts.add("GEM unit ID", row.text("UnitID"));
    facts.add("GEM terminal ID", row.text("ProjectID"));
    facts.add("GEM wiki page", row.text("Wiki"));
    facts.add("Last updated", row.text("LastUpdated"));
    terminal.facts = std::move(facts).take();
    return terminal;
}

} // namespace

std::vector<GemTerminal> readTerminals(const CsvTable& table) {
    return readUnique(table, "UnitID", readTerminal);
}

} // namespace vasker
