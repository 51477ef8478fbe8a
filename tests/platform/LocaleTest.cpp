#include "platform/Locale.h"

#include <QtGlobal>

#include <gtest/gtest.h>

namespace vasker {
namespace {

QString messagesLocaleWith(const char* all, const char* messages, const char* language) {
    qputenv("LC_ALL", all);
    qputenv("LC_MESSAGES", messages);
    qputenv("LANG", language);
    return messagesLocale();
}

TEST(Locale, TheFirstVariableThatIsSetDecides) {
    EXPECT_EQ(messagesLocaleWith("de_DE.UTF-8", "fr_CA.UTF-8", "en_CA.UTF-8"),
              QStringLiteral("de_DE"));
    EXPECT_EQ(messagesLocaleWith("", "fr_CA.UTF-8", "en_CA.UTF-8"), QStringLiteral("fr_CA"));
    EXPECT_EQ(messagesLocaleWith("", "", "fr_FR@euro"), QStringLiteral("fr_FR"));
}

TEST(Locale, NoneOrTheMachinesOwnMeansEnglish) {
    EXPECT_EQ(messagesLocaleWith("", "", ""), QStringLiteral("en"));
    EXPECT_EQ(messagesLocaleWith("C", "", "fr_CA.UTF-8"), QStringLiteral("en"));
    EXPECT_EQ(messagesLocaleWith("", "C.UTF-8", "fr_CA.UTF-8"), QStringLiteral("en"));
    EXPECT_EQ(messagesLocaleWith("", "", "POSIX"), QStringLiteral("en"));
}

} // namespace
} // namespace vasker
