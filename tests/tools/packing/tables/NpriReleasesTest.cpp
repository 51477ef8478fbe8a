#include "tools/openmap-release/packing/tables/NpriReleases.h"

#include "tools/openmap-release/packing/tables/InputError.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

const std::string headings = "NPRI_ID,Year,Substance,Unit,\"Quantity, all media\"\n";

std::string substances(const std::string& rows, PackTally& tally) {
    const auto releases = readNpriReleases(CsvTable("r.csv", headings + rows), tally);
    std::string text;
    for (const NpriRelease& release : releases.at("7").substances) {
        text += release.substance + " " + release.quantity + "\n";
    }
    return text;
}

std::string substances(const std::string& rows) {
    PackTally tally;
    return substances(rows, tally);
}

TEST(NpriReleases, ShowCommonAirPollutantsFirstThenTheLargest) {
    EXPECT_EQ(substances("7,2021,Toluene,kg,1500\n"
                         "7,2021,Benzene,tonnes,2\n"
                         "7,2021,Lead,kg,0\n"
                         "7,2021,Carbon monoxide,tonnes,0.1\n"
                         "7,2021,Nitrogen oxides (expressed as nitrogen dioxide),tonnes,0\n"),
              "Nitrogen oxides (expressed as nitrogen dioxide) 0 tonnes\n"
              "Carbon monoxide 0.1 tonnes\n"
              "Benzene 2 tonnes\n"
              "Toluene 1,500 kg\n"
              "Lead 0 kg\n");
}

TEST(NpriReleases, AreThoseOfTheLatestYear) {
    PackTally tally;
    EXPECT_EQ(substances("7,2019,A,kg,1\n7,2021,B,kg,2\n7,2020,C,kg,3\n", tally), "B 2 kg\n");
    EXPECT_EQ(tally.count(TableRole::npriReleases, PackStep::dropped, "rows of earlier years"), 2U);
}

TEST(NpriReleases, AreTenAtMost) {
    std::string rows;
    for (int number = 10; number < 22; ++number) {
        rows += "7,2021,S" + std::to_string(number) + ",kg," + std::to_string(number) + "\n";
    }
    PackTally tally;
    const std::string text = substances(rows, tally);
    EXPECT_TRUE(text.starts_with("S21 21 kg\n"));
    EXPECT_TRUE(text.ends_with("S12 12 kg\n"));
    EXPECT_EQ(tally.count(TableRole::npriReleases, PackStep::dropped, "substances beyond ten"), 2U);
}

TEST(NpriReleases, LoseTheNoiseOfBinaryNumbersAndNothingElse) {
    PackTally tally;
    EXPECT_EQ(substances("7,2021,A,tonnes,111.629700000000004\n"
                         "7,2021,B,tonnes,0.61623000000000006\n"
                         "7,2021,C,tonnes,0.000000000001234\n"
                         "7,2021,D,kg,123456789012345\n",
                         tally),
              "D 123,456,789,012,345 kg\n"
              "A 111.6297 tonnes\n"
              "B 0.61623 tonnes\n"
              "C 0.000000000001234 tonnes\n");
    EXPECT_EQ(tally.count(TableRole::npriReleases,
                          PackStep::corrected,
                          "quantities whose last digits are rounding noise"),
              2U);
}

TEST(NpriReleases, RefuseWhatCannotBeShown) {
    for (const std::string rows : {"7,2021,A,grams,1\n",
                                   "7,2021,A,kg,much\n",
                                   "7,2021,A,kg,\n",
                                   "7,2021,A,kg,-1\n",
                                   "7,21,A,kg,1\n",
                                   "7,2021,A,kg,1\n7,2021,A,kg,1\n"}) {
        EXPECT_THROW((void)substances(rows), InputError) << rows;
    }
}

} // namespace
} // namespace vasker
