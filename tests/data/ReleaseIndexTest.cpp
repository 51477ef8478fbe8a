#include "data/ReleaseIndex.h"

#include "data/Cancelled.h"
#include "data/Classification.h"
#include "data/text/CaseFolding.h"
#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>

#include <random>

namespace vasker {
namespace {

/// Draws releases and queries from few pieces of text, so that they meet often and in odd ways.
class Draw {
  public:
    explicit Draw(unsigned seed) : m_random(seed) {}

    std::size_t below(std::size_t end) {
        return std::uniform_int_distribution<std::size_t>(0, end - 1)(m_random);
    }

    std::string text(std::size_t mostPieces) {
        static const std::vector<std::string> pieces = {"a",
                                                        "A",
                                                        "b",
                                                        "e",
                                                        "E",
                                                        "i",
                                                        "I",
                                                        "s",
                                                        "ss",
                                                        "SS",
                                                        "1",
                                                        "2",
                                                        "10",
                                                        "02",
                                                        " ",
                                                        "-",
                                                        "\u00E9",
                                                        "\u00C9",
                                                        "e\u0301",
                                                        "\u0301",
                                                        "\u0323",
                                                        "\u00DF",
                                                        "\u1E9E",
                                                        "\u0130",
                                                        "\u0131",
                                                        "\u0307",
                                                        "\u03C3",
                                                        "\u03C2",
                                                        "\u03A3",
                                                        "\uFF41",
                                                        "\uFF21",
                                                        "\u200D",
                                                        "\r",
                                                        "\n",
                                                        "\r\n",
                                                        "\u0928",
                                                        "\u093F",
                                                        "\u1100",
                                                        "\u1161",
                                                        "\uFB03",
                                                        "\uFE0F",
                                                        "\u4E00",
                                                        "\u2013",
                                                        "\u1E9B",
                                                        "\u0345",
                                                        "\u03B1",
                                                        "\U0001F468",
                                                        "\U0001F469",
                                                        "\U0001F1E8",
                                                        "\U0001F1E6",
                                                        std::string(1, '\0'),
                                                        "Montr\u00E9al",
                                                        "Plant",
                                                        "gas plant"};
        std::string result;
        for (std::size_t left = below(mostPieces + 1); left > 0; --left) {
            // Half of all pieces are among the first, or hardly any two texts would meet.
            result += pieces[below(2) == 0 ? below(pieces.size()) : below(20)];
        }
        return result;
    }

    OpenMapRelease::Asset asset() {
        OpenMapRelease::Asset drawn = makeAsset();
        drawn.id = text(3);
        drawn.name = text(4);
        drawn.kind = text(1);
        drawn.jurisdiction = text(2);
        drawn.reportedCompany.reset();
        if (below(2) == 0) {
            drawn.reportedCompany = text(4);
        }
        for (std::size_t left = below(4); left > 0; --left) {
            drawn.facts.push_back(makeFact(text(6)));
        }
        return drawn;
    }

    std::shared_ptr<const OpenMapRelease> release() {
        auto drawn = std::make_shared<OpenMapRelease>(makeRelease());
        drawn->assets.clear();
        for (std::size_t left = below(12); left > 0; --left) {
            drawn->assets.push_back(asset());
        }
        return drawn;
    }

    /// A new text, or a part of one of the release that may begin and end inside a character.
    std::string query(const OpenMapRelease& release) {
        if (release.assets.empty() || below(2) == 0) {
            return text(3);
        }
        const auto& drawn = release.assets[below(release.assets.size())];
        const std::string& from =
            drawn.facts.empty() || below(2) == 0 ? drawn.name : drawn.facts[0].value;
        const std::size_t begin = below(from.size() + 1);
        return from.substr(begin, below(6));
    }

  private:
    std::mt19937 m_random;
};

using FoundTexts = std::vector<std::optional<SearchedText>>; // of each record

FoundTexts firstMatches(const ReleaseIndex& index, std::string_view query) {
    FoundTexts texts;
    for (AssetIndex record = 0; record < index.release().assets.size(); ++record) {
        texts.push_back(index.firstMatch(folded(query, index.locale()), record));
    }
    return texts;
}

/// By definition.
FoundTexts
firstMatches(const OpenMapRelease& release, std::string_view query, const TextLocale& locale) {
    FoundTexts texts;
    for (const OpenMapRelease::Asset& asset : release.assets) {
        std::optional<SearchedText> first;
        for (const SearchedText& each : searchedTexts(asset)) {
            const bool contains = containsFolded(folded(each.text, locale), folded(query, locale));
            if (!query.empty() && !first && contains) {
                first = each;
            }
        }
        texts.push_back(first);
    }
    return texts;
}

TEST(ReleaseIndex, AnswersAsTheDefinitionsDo) {
    const std::vector<TextLocale> locales = {TextLocale("en_CA"),
                                             TextLocale("fr_CA"),
                                             TextLocale("tr_TR"),
                                             TextLocale("de_DE"),
                                             TextLocale("C")};
    Draw draw(20251120);
    int found = 0;
    int partlyFound = 0;
    for (std::size_t round = 0; round < 4'000; ++round) {
        const auto release = draw.release();
        const TextLocale& locale = locales[round % locales.size()];
        const ReleaseIndex index(release, locale);
        ASSERT_EQ(index.kinds(), kinds(*release));
        const std::string counted = draw.query(*release);
        for (std::size_t kind = 0; kind < index.kinds().size(); ++kind) {
            ASSERT_EQ(index.counts(index.matchingRanks(counted))[kind],
                      filtered(*release, counted, index.kinds()[kind], locale).size());
        }
        for (int each = 0; each < 4; ++each) {
            const std::string query = draw.query(*release);
            const std::string kind = draw.below(3) != 0 ? "all"
                                     : index.kinds().empty()
                                         ? "none"
                                         : index.kinds()[draw.below(index.kinds().size())];
            const auto expected = filtered(*release, query, kind, locale);
            ASSERT_EQ(index.filtered(query, kind), expected)
                << "round " << round << ", locale " << locale.id() << ", query "
                << testing::PrintToString(query);
            ASSERT_EQ(firstMatches(index, query), firstMatches(*release, query, locale))
                << "round " << round << ", locale " << locale.id() << ", query "
                << testing::PrintToString(query);
            found += expected.empty() ? 0 : 1;
            partlyFound +=
                !query.empty() && !expected.empty() && expected.size() < release->assets.size() ? 1
                                                                                                : 0;
        }
    }
    // The draw has to be worth it: many queries are found, and in some records only.
    EXPECT_GT(found, 4'000);
    EXPECT_GT(partlyFound, 2'000);
}

TEST(ReleaseIndex, AnswersAsTheDefinitionsDoInManyRecords) {
    Draw draw(7);
    auto release = std::make_shared<OpenMapRelease>(makeRelease());
    for (int each = 0; each < 2'000; ++each) {
        release->assets.push_back(draw.asset());
    }
    const TextLocale locale("en_CA");
    const ReleaseIndex index(release, locale);
    for (const std::string query : {"",
                                    " ",
                                    "a",
                                    "s",
                                    "ss",
                                    "e",
                                    "\u00E9",
                                    "e\u0301",
                                    "plant",
                                    "montr\u00E9al",
                                    "montre",
                                    "\r\n",
                                    "\n",
                                    "i",
                                    "\u0131",
                                    "absent"}) {
        for (const std::string kind : {"all", "a", ""}) {
            EXPECT_EQ(index.filtered(query, kind), filtered(*release, query, kind, locale))
                << query;
        }
    }
}

TEST(ReleaseIndex, AReleaseWithoutRecordsAnswersNothing) {
    auto release = std::make_shared<OpenMapRelease>(makeRelease());
    release->assets.clear();
    const ReleaseIndex index(release, TextLocale("en"));
    EXPECT_TRUE(index.filtered("", "all").empty());
    EXPECT_TRUE(index.filtered("a", "all").empty());
    EXPECT_TRUE(index.kinds().empty());
    EXPECT_TRUE(index.counts(index.matchingRanks("")).empty());
    EXPECT_EQ(index.find("A-0"), std::nullopt);
}

TEST(ReleaseIndex, ARecordIsFoundInTheFirstOfItsTexts) {
    auto release = std::make_shared<OpenMapRelease>(makeRelease());
    release->assets = {makeAsset(0)};
    release->assets[0].facts = {makeFact("North Gas"), makeFact("South")};
    const ReleaseIndex index(release, TextLocale("en"));
    using Field = SearchedText::Field;
    EXPECT_EQ(index.firstMatch("plant", 0), (SearchedText{Field::name, 0, "Plant 0"}));
    EXPECT_EQ(index.firstMatch("a-", 0), (SearchedText{Field::id, 0, "A-0"}));
    EXPECT_EQ(index.firstMatch("gas", 0), (SearchedText{Field::company, 0, "Prairie Gas"}));
    EXPECT_EQ(index.firstMatch("alb", 0), (SearchedText{Field::jurisdiction, 0, "Alberta"}));
    EXPECT_EQ(index.firstMatch("north", 0), (SearchedText{Field::fact, 0, "North Gas"}));
    EXPECT_EQ(index.firstMatch("south", 0), (SearchedText{Field::fact, 1, "South"}));
    EXPECT_EQ(index.firstMatch("gassouth", 0), std::nullopt);
    EXPECT_EQ(index.firstMatch("", 0), std::nullopt);
}

TEST(ReleaseIndex, ARecordIsFoundByItsExactID) {
    const ReleaseIndex index(std::make_shared<OpenMapRelease>(makeRelease()), TextLocale("en"));
    EXPECT_EQ(index.find("A-1"), 1U);
    EXPECT_EQ(index.find("a-1"), std::nullopt);
    EXPECT_EQ(index.find(""), std::nullopt);
}

TEST(ReleaseIndex, TheFirstOfRecordsWithOneIDIsFound) {
    auto release = std::make_shared<OpenMapRelease>(makeRelease());
    release->assets = {makeAsset(3), makeAsset(5), makeAsset(5)};
    EXPECT_EQ(ReleaseIndex(release, TextLocale("en")).find("A-5"), 1U);
}

TEST(ReleaseIndex, ACopyAnswersWhenTheOriginalIsGone) {
    auto index = std::make_unique<ReleaseIndex>(std::make_shared<OpenMapRelease>(makeRelease()),
                                                TextLocale("en"));
    const ReleaseIndex copy = *index;
    index.reset();
    EXPECT_EQ(copy.filtered("plant 1", "all"), std::vector<AssetIndex>{1});
    EXPECT_EQ(copy.find("A-1"), 1U);
}

TEST(ReleaseIndex, IsNotMadeWhenAStopIsRequested) {
    std::stop_source stop;
    stop.request_stop();
    const auto release = std::make_shared<OpenMapRelease>(makeRelease());
    EXPECT_THROW(ReleaseIndex(release, TextLocale("en"), stop.get_token()), Cancelled);
    EXPECT_THROW(static_cast<void>(kinds(*release, stop.get_token())), Cancelled);
}

} // namespace
} // namespace vasker
