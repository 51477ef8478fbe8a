#include "data/export/CsvExport.h"

#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

const ExportHeader header{
    "canada-energy-2026-11", std::string(64, 'a'), "gas \"x\"\n", "gas_plant"};

std::string exported(const OpenMapRelease& release, const std::vector<AssetIndex>& records) {
    std::string text;
    const ExportOutcome outcome = exportCsv(release, records, header, [&](std::string_view piece) {
        text += piece;
        return true;
    });
    EXPECT_EQ(outcome, ExportOutcome::written);
    return text;
}

/// The lines of an export behind its heading.
std::string rows(const OpenMapRelease& release, const std::vector<AssetIndex>& records) {
    const std::string text = exported(release, records);
    return text.substr(text.find('\n') + 1);
}

/// One facility with one fact, every text of which is short.
OpenMapRelease plainRelease() {
    OpenMapRelease release = makeRelease();
    release.sources[0].attribution = "Thanks, all";
    release.sources[0].publisher = "P";
    release.sources[0].sourceURL = "https://p.example";
    release.sources[0].licenceURL = "https://l.example";
    OpenMapRelease::Asset& record = release.assets[0];
    record.name = "Plant \"A\"";
    record.kind = "compressor_station";
    record.jurisdiction = "Alberta";
    record.status = "Reported for 2022";
    record.asOf = "2016";
    record.reportedCompany = "Énergie, Inc.";
    record.latitude = 55.5;
    record.longitude = -118.25;
    record.facts = {{"Emissions", "1 kt\nor so", release.sources[0].id, "2021"}};
    return release;
}

TEST(CsvExport, NamesReleaseDigestQueryAndFilterInTheNamesOfItsLastColumns) {
    EXPECT_EQ(exported(plainRelease(), {}),
              "id,name,category,category_key,jurisdiction,status,company,latitude,longitude,fact,"
              "value,period,source,publisher,page,licence,attribution,"
              "release=canada-energy-2026-11,sha256=" +
                  std::string(64, 'a') + ",\"query=gas \"\"x\"\" \",filter=gas_plant\n");
}

TEST(CsvExport, WritesARowForTheRecordAndOneForEachFact) {
    const std::string start = "A-0,\"Plant \"\"A\"\"\",Compressor_station,compressor_station,"
                              "Alberta,Reported for 2022,\"Énergie, Inc.\",55.5,-118.25,";
    const std::string end = ",NPRI,P,https://p.example,https://l.example,\"Thanks, all\",,,,\n";
    EXPECT_EQ(rows(plainRelease(), {0}),
              start + ",,2016" + end + start + "Emissions,\"1 kt\nor so\",2021" + end);
}

TEST(CsvExport, KeepsTheOrderItIsGiven) {
    OpenMapRelease release = plainRelease();
    release.assets[0].facts.clear();
    release.assets[1].facts.clear();
    const std::string text = rows(release, {1, 0});
    EXPECT_TRUE(text.starts_with("A-1,"));
    EXPECT_NE(text.find("\nA-0,"), std::string::npos);
}

TEST(CsvExport, LeavesTheCellOfAnAbsentCompanyEmpty) {
    OpenMapRelease release = plainRelease();
    release.assets[0].reportedCompany.reset();
    EXPECT_NE(rows(release, {0}).find("Reported for 2022,,55.5,"), std::string::npos);
}

TEST(CsvExport, HoldsNoCharacterThatReadersRefuse) {
    OpenMapRelease release = plainRelease();
    release.assets[0].name = std::string("a\0b", 3);
    EXPECT_NE(rows(release, {0}).find("A-0,a\uFFFDb,"), std::string::npos);
}

TEST(CsvExport, WritesNoTextThatASpreadsheetWouldTakeForAFormula) {
    OpenMapRelease release = plainRelease();
    OpenMapRelease::Asset& record = release.assets[0];
    for (const char* text :
         {"=1+2", "+1 403 555", "-2+3", "@SUM(A1)", "\t=1", "\r=1", "-5 t", "-"}) {
        record.facts[0].value = text;
        EXPECT_NE(rows(release, {0}).find("'" + std::string(text)), std::string::npos) << text;
    }
    for (const char* text : {"-5", "-118.25", "5 t", "a=b", "14-05", "'"}) {
        record.facts[0].value = text;
        EXPECT_NE(rows(release, {0}).find("Emissions," + std::string(text) + ",2021"),
                  std::string::npos)
            << text;
    }
    record.facts[0].value = "=\"a\",1";
    EXPECT_NE(rows(release, {0}).find(R"(Emissions,"'=""a"",1",2021)"), std::string::npos);
}

TEST(CsvExport, EndsWhereItsSinkWantsNoMore) {
    const OpenMapRelease release = plainRelease();
    const std::vector<AssetIndex> many(10'000, 0);
    std::size_t pieces = 0;
    const ExportOutcome outcome = exportCsv(release, many, header, [&](std::string_view) {
        ++pieces;
        return pieces < 2;
    });
    EXPECT_EQ(outcome, ExportOutcome::stopped);
    EXPECT_EQ(pieces, 2U);
}

TEST(CsvExport, IsBoundedWhereALongAttributionIsRepeated) {
    OpenMapRelease release = plainRelease();
    release.sources[0].attribution = std::string(1'000'000, 'x');
    const std::vector<AssetIndex> many(10'000, 0);
    std::size_t size = 0;
    const ExportOutcome outcome = exportCsv(release, many, header, [&](std::string_view piece) {
        size += piece.size();
        return true;
    });
    EXPECT_EQ(outcome, ExportOutcome::tooLarge);
    EXPECT_LE(size, maximumExportBytes);
}

} // namespace
} // namespace vasker
