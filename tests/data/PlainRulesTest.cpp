// The kit's rules give the answers of the rules that are written a second time for tests.

#include "tests/support/PlainRules.h"

#include "data/InternetDateTime.h"
#include "data/ReleaseRules.h"
#include "data/WebAddress.h"
#include "tests/support/ReleaseBuilder.h"
#include "tests/support/ReleaseFromBytes.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace vasker {
namespace {

using Verdict = std::optional<OpenMapRelease::Invalid>;

Verdict verdictOf(const OpenMapRelease& release) {
    try {
        validate(release);
        return std::nullopt;
    } catch (const OpenMapRelease::Refusal& refusal) {
        return refusal.invalid();
    }
}

class PlainRules : public testing::Test {
  protected:
    std::size_t below(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(m_random);
    }

    /// `text` with up to three characters replaced, removed or inserted.
    std::string altered(std::string text, std::string_view characters) {
        for (std::size_t left = below(4); left > 0; --left) {
            const std::size_t at = below(text.size() + 1);
            const char character = characters[below(characters.size())];
            switch (below(3)) {
            case 0:
                text.insert(at, 1, character);
                break;
            case 1:
                text.erase(std::min(at, text.size()), 1);
                break;
            default:
                text.replace(std::min(at, text.size()), 1, 1, character);
            }
        }
        return text;
    }

  private:
    std::mt19937 m_random{1}; // NOLINT(cert-msc51-cpp): the same in every run
};

TEST_F(PlainRules, GiveTheVerdictsOfTheKitOnReleases) {
    std::map<Verdict, int> counts;
    for (int run = 0; run < 5'000; ++run) {
        std::vector<std::uint8_t> bytes(1 + below(24));
        for (std::uint8_t& byte : bytes) {
            byte = static_cast<std::uint8_t>(below(256));
        }
        const OpenMapRelease release = releaseFrom(bytes);
        const Verdict verdict = plainVerdict(release);
        ASSERT_EQ(verdictOf(release), verdict) << testing::PrintToString(bytes);
        ++counts[verdict];
    }
    for (const Verdict verdict : {Verdict(),
                                  Verdict(OpenMapRelease::Invalid::records),
                                  Verdict(OpenMapRelease::Invalid::provenance),
                                  Verdict(OpenMapRelease::Invalid::coordinates)}) {
        EXPECT_GT(counts[verdict], 100);
    }
}

TEST_F(PlainRules, AgreeAboutDateTimes) {
    int accepted = 0;
    for (int run = 0; run < 100'000; ++run) {
        const std::string text =
            altered(below(2) == 0 ? "2024-02-29T23:59:59Z" : "1900-12-31T00:00:00+05:30",
                    "0123456789-+:TZtz. ");
        ASSERT_EQ(isInternetDateTime(text), plainIsInternetDateTime(text)) << text;
        accepted += isInternetDateTime(text) ? 1 : 0;
    }
    EXPECT_GT(accepted, 10'000);
    EXPECT_LT(accepted, 90'000);
}

TEST_F(PlainRules, AgreeAboutWebAddresses) {
    static const std::array<std::string, 5> seeds = {"https://example.ca:8443/a%20b?c=d#e",
                                                     "https://[2001:db8::1]:1/",
                                                     "https://[::ffff:192.0.2.1]",
                                                     "https://[v1.a:b]/",
                                                     "https://192.0.2.1/@"};
    int accepted = 0;
    for (int run = 0; run < 100'000; ++run) {
        const std::string text = altered(seeds.at(below(seeds.size())),
                                         ":/?#[]@!$&'()*+,;=%-._~019afgzAFGZvVs \\\"<>^|");
        ASSERT_EQ(secureURL(text), plainSecureURL(text)) << text;
        accepted += secureURL(text) ? 1 : 0;
    }
    EXPECT_GT(accepted, 10'000);
    EXPECT_LT(accepted, 90'000);
}

} // namespace
} // namespace vasker
