#include "tools/openmap-release/packing/LastReport.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

using enum TableRole;

TEST(LastReport, IsTheLatestYearThatAnyTableNames) {
    LastReport last;
    last.add(npriReports, 2015, 2022);
    last.add(npriReportYears, 2018, 2022);
    last.add(npriFacilities, 2016, 2016);
    EXPECT_EQ(last.year(), 2018);
    EXPECT_EQ(last.table(), npriReportYears);
    EXPECT_EQ(last.status(), "Last reported for 2018");
}

TEST(LastReport, CitesTheFirstOfTheTablesThatNameIt) {
    LastReport last;
    last.add(npriReports, 2022, 2022);
    last.add(npriReportYears, 2022, 2022);
    EXPECT_EQ(last.table(), npriReports);
    EXPECT_EQ(last.status(), "Reported for 2022");
}

TEST(LastReport, MayBeFollowedByOthersWhereNoTableReachesFurther) {
    LastReport last;
    last.add(npriReleases, 2021, 2021);
    last.add(npriFacilities, 2015, 2015);
    EXPECT_EQ(last.status(), "Reported for 2021");
}

} // namespace
} // namespace vasker
