#include "data/text/TextLocale.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <utility>
#include <vector>

namespace vasker {
namespace {

TEST(TextLocale, EncodingAndModifierAreCut) {
    EXPECT_EQ(TextLocale("fr_CA.UTF-8").id(), "fr_CA");
    EXPECT_EQ(TextLocale("de_DE@euro").id(), "de_DE");
    EXPECT_EQ(TextLocale("de_DE.ISO-8859-15@euro").id(), "de_DE");
}

TEST(TextLocale, TheLocaleOfTheCLibraryMeansEnglish) {
    for (const std::string_view id : {"", "C", "POSIX", "C.UTF-8", ".UTF-8"}) {
        EXPECT_EQ(TextLocale(id).id(), "en") << id;
    }
}

TEST(TextLocale, TurkishAndAzerbaijaniHaveADotlessI) {
    EXPECT_TRUE(TextLocale("tr").hasDotlessI());
    EXPECT_TRUE(TextLocale("tr_TR.UTF-8").hasDotlessI());
    EXPECT_TRUE(TextLocale("az_Latn_AZ").hasDotlessI());
    EXPECT_FALSE(TextLocale("en").hasDotlessI());
    EXPECT_FALSE(TextLocale("trv_TW").hasDotlessI());
}

class Environment : public testing::Test {
  protected:
    Environment() {
        for (const auto* variable : {"LC_ALL", "LC_COLLATE", "LANG"}) {
            const char* value = std::getenv(variable);
            m_saved.emplace_back(variable, value == nullptr ? std::string() : value);
            unsetenv(variable);
        }
    }
    ~Environment() override {
        for (const auto& [variable, value] : m_saved) {
            if (value.empty()) {
                unsetenv(variable.c_str());
            } else {
                setenv(variable.c_str(), value.c_str(), 1);
            }
        }
    }

  private:
    std::vector<std::pair<std::string, std::string>> m_saved;
};

using TextLocaleOfTheEnvironment = Environment;

TEST_F(TextLocaleOfTheEnvironment, IsTheFirstVariableThatIsSetAndNotEmpty) {
    EXPECT_EQ(TextLocale::fromEnvironment().id(), "en");
    setenv("LANG", "fr_CA.UTF-8", 1);
    EXPECT_EQ(TextLocale::fromEnvironment().id(), "fr_CA");
    setenv("LC_COLLATE", "de_DE", 1);
    EXPECT_EQ(TextLocale::fromEnvironment().id(), "de_DE");
    setenv("LC_ALL", "", 1);
    EXPECT_EQ(TextLocale::fromEnvironment().id(), "de_DE");
    setenv("LC_ALL", "C", 1);
    EXPECT_EQ(TextLocale::fromEnvironment().id(), "en");
}

} // namespace
} // namespace vasker
