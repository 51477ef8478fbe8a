#include "tools/openmap-release/packing/PackTally.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

using enum TableRole;
using enum PackStep;

TEST(PackTally, ReportsByStepThenByTable) {
    PackTally tally;
    tally.add(ghgrpFacilities, dropped, "rows of other industries", 1234);
    tally.add(npriFacilities, dropped, "rows without a position", "104");
    tally.add(npriFacilities, dropped, "rows without a position", "107");
    tally.add(ghgrpFacilities, taken, "rows as records");
    tally.add(ghgrpFacilities, noted, "nothing", 0);
    EXPECT_EQ(tally.report(),
              "taken           1  ghgrp-facilities  rows as records\n"
              "dropped         2  npri-facilities   rows without a position: 104, 107\n"
              "dropped     1,234  ghgrp-facilities  rows of other industries\n");
}

TEST(PackTally, NamesNoIdsWhereTheyAreMany) {
    PackTally tally;
    for (int id = 0; id < 41; ++id) {
        tally.add(terminals, dropped, "rows", std::to_string(id));
    }
    EXPECT_EQ(tally.report(), "dropped        41  gem-lng-terminals rows\n");
}

TEST(PackTally, SummarisesATable) {
    PackTally tally;
    tally.add(npriFacilities, taken, "rows as records", 4011);
    tally.add(ghgrpFacilities, taken, "rows as records", 1);
    tally.add(npriFacilities, dropped, "rows without a position", "104");
    EXPECT_EQ(
        tally.summary(npriFacilities),
        "Counted in packing: rows as records, taken: 4,011; rows without a position, dropped: "
        "1.");
    EXPECT_EQ(tally.summary(terminals), "");
}

} // namespace
} // namespace vasker
