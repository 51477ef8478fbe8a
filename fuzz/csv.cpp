// Any bytes are a table or are refused with one message; the rows of a table are in the order of
// their lines, and what is read of them keeps its bounds.

#include "tools/openmap-release/packing/PackTally.h"
#include "tools/openmap-release/packing/tables/CsvTable.h"
#include "tools/openmap-release/packing/tables/NpriReleases.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    try {
        vasker::CsvTable table("t.csv", bytes);
        static_cast<void>(table.replaceTabs());
        std::size_t line = 1;
        for (const vasker::CsvTable::Row& cells : table.rows()) {
            if (cells.line < line || cells.cells.empty()) {
                std::abort();
            }
            line = cells.line;
        }
        vasker::PackTally tally;
        for (const auto& [id, releases] : vasker::readNpriReleases(table, tally)) {
            if (releases.substances.empty() || releases.substances.size() > vasker::mostReleases) {
                std::abort();
            }
        }
    } catch (const vasker::InputError& error) {
        if (!std::string_view(error.what()).starts_with("t.csv:")) {
            std::abort();
        }
    }
    return 0;
}
