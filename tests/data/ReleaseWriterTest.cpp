#include "data/ReleaseWriter.h"

#include "data/ReleaseReader.h"
#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>
#include <random>
#include <stdexcept>

namespace vasker {
namespace {

double writtenAndRead(double latitude) {
    auto asset = makeAsset();
    asset.latitude = latitude;
    return readAsset(encode(asset)).latitude;
}

TEST(ReleaseWriter, EveryFieldIsWrittenUnderItsKeyInTheOrderOfTheFields) {
    const OpenMapRelease release{
        .schemaVersion = 1,
        .releaseID = "r",
        .generatedAt = "g",
        .coverageName = "c",
        .limitations = {"l", "m"},
        .sources = {{.id = "i",
                     .publisher = "p",
                     .dataset = "d",
                     .sourceURL = "s",
                     .licenceURL = "l",
                     .attribution = "a",
                     .conditions = "c",
                     .modifications = "m"}},
        .assets = {{.id = "i",
                    .name = "n",
                    .kind = "k",
                    .jurisdiction = "j",
                    .sourceID = "s",
                    .status = "t",
                    .asOf = "o",
                    .latitude = 53.25,
                    .longitude = -113,
                    .reportedCompany = "c",
                    .facts = {{.label = "l", .value = "v", .sourceID = "s", .asOf = "o"}},
                    .routes = {{{-1.5, 2}, {3, 4}}, {}}}}};
    EXPECT_EQ(
        encode(release),
        R"({"schemaVersion":1,"releaseID":"r","generatedAt":"g","coverageName":"c",)"
        R"("limitations":["l","m"],"sources":[{"id":"i","publisher":"p","dataset":"d",)"
        R"("sourceURL":"s","licenceURL":"l","attribution":"a","conditions":"c","modifications":"m"}],)"
        R"("assets":[{"id":"i","name":"n","kind":"k","jurisdiction":"j","sourceID":"s","status":"t",)"
        R"("asOf":"o","latitude":53.25,"longitude":-113,"reportedCompany":"c",)"
        R"("facts":[{"label":"l","value":"v","sourceID":"s","asOf":"o"}],)"
        R"("routes":[[[-1.5,2],[3,4]],[]]}]})");
}

TEST(ReleaseWriter, AnAbsentCompanyHasNoKey) {
    auto asset = makeAsset();
    EXPECT_NE(encode(asset).find("reportedCompany"), std::string::npos);
    asset.reportedCompany.reset();
    EXPECT_EQ(encode(asset).find("reportedCompany"), std::string::npos);
}

TEST(ReleaseWriter, TextsAreEscapedWhereJSONRequiresItAndElseKept) {
    auto fact = makeFact("\"\\/\b\f\n\r\t\x01\x1F\x7F\u00E9\U0001F600" + std::string(1, '\0'));
    EXPECT_NE(encode(fact).find(R"("value":"\"\\/\b\f\n\r\t\u0001\u001f)"
                                "\x7F\u00E9\U0001F600\\u0000\""),
              std::string::npos)
        << encode(fact);
    EXPECT_EQ(readFact(encode(fact)), fact);
}

TEST(ReleaseWriter, NumbersReadBackToTheSameValue) {
    const double largest = std::numeric_limits<double>::max();
    for (const double number : {0.0,
                                0.1,
                                -113.493823,
                                1.0 / 3,
                                5e-324,
                                1e15,
                                9007199254740993.0,
                                123456789012345680000.0,
                                1e22,
                                -largest,
                                largest}) {
        EXPECT_EQ(writtenAndRead(number), number);
    }
    EXPECT_TRUE(std::signbit(writtenAndRead(-0.0)));
}

TEST(ReleaseWriter, AnyFiniteNumberReadsBackToTheSameValue) {
    std::mt19937_64 random(7);
    for (int each = 0; each < 20'000; ++each) {
        const auto number = std::bit_cast<double>(random());
        if (std::isfinite(number)) {
            ASSERT_EQ(writtenAndRead(number), number);
        }
    }
}

TEST(ReleaseWriter, WhatIsNoPairIsWrittenAsAPositionWithoutNumbers) {
    auto asset = makeAsset();
    constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
    asset.routes = {{{noNumber, noNumber}}};
    EXPECT_NE(encode(asset).find(R"("routes":[[[]]])"), std::string::npos);
}

TEST(ReleaseWriter, ACoordinateWithoutAFiniteValueCannotBeWritten) {
    auto asset = makeAsset();
    asset.latitude = std::numeric_limits<double>::infinity();
    EXPECT_THROW(static_cast<void>(encode(asset)), std::domain_error);
}

} // namespace
} // namespace vasker
