#include "app/saving/SavedName.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

std::string named(const QStringList& parts) {
    return savedName(parts, QStringLiteral(".csv")).toStdString();
}

TEST(SavedName, JoinsItsPartsAndLeavesOutTheEmpty) {
    EXPECT_EQ(named({QStringLiteral("canada-energy_2026.11"), QStringLiteral("gas")}),
              "canada-energy_2026.11-gas.csv");
    EXPECT_EQ(named({QStringLiteral("canada"), QString()}), "canada.csv");
}

TEST(SavedName, KeepsLettersOfAnyScriptAndNothingThatAPathOrAShellReads) {
    EXPECT_EQ(named({QStringLiteral("a"), QStringLiteral(" ../é/\\0 $(b)\n\"c\" ")}),
              "a-..-é-0-b-c.csv");
    EXPECT_EQ(named({QStringLiteral("../.hidden")}), "hidden.csv");
    EXPECT_EQ(named({QStringLiteral("/"), QStringLiteral("..")}), "records.csv");
}

TEST(SavedName, IsNeverLongerThanAFileSystemAllows) {
    const QString name = savedName({QString(500, QChar(0x4e00))}, QStringLiteral(".csv"));
    EXPECT_LE(name.toUtf8().size(), 255);
    EXPECT_TRUE(name.endsWith(QStringLiteral(".csv")));
}

} // namespace
} // namespace vasker
