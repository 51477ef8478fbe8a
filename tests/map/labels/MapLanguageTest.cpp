#include "map/labels/MapLanguage.h"

#include <QString>

#include <gtest/gtest.h>

namespace vasker {
namespace {

TEST(MapLanguageTest, LabelsAreFrenchWhereTheTextsAre) {
    EXPECT_EQ(mapLanguage(QStringLiteral("fr_CA")), MapLanguage::french);
    EXPECT_EQ(mapLanguage(QStringLiteral("fr")), MapLanguage::french);
}

TEST(MapLanguageTest, LabelsAreEnglishInEveryOtherLanguage) {
    for (const char* locale : {"en_CA", "de_DE", "frr_DE", "C", ""}) {
        EXPECT_EQ(mapLanguage(QString::fromLatin1(locale)), MapLanguage::english) << locale;
    }
}

} // namespace
} // namespace vasker
