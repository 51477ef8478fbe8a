#include "data/text/FoldedTexts.h"

#include "data/Cancelled.h"
#include "data/text/CaseFolding.h"
#include "tests/data/text/SampleTexts.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace vasker {
namespace {

using Records = std::vector<std::uint32_t>;
using Texts = std::vector<std::string>;

FoldedTexts made(const std::vector<Texts>& records) {
    FoldedTexts made(english);
    for (const Texts& texts : records) {
        for (const std::string& text : texts) {
            made.addText(text);
        }
        made.endRecord();
    }
    made.finish();
    return made;
}

/// The records that contain `query` by definition.
Records expected(const std::vector<Texts>& records, const std::string& query) {
    Records found;
    for (std::size_t record = 0; record < records.size(); ++record) {
        for (const std::string& text : records[record]) {
            if (containsFolded(folded(text, english), folded(query, english))) {
                found.push_back(static_cast<std::uint32_t>(record));
                break;
            }
        }
    }
    return found;
}

TEST(FoldedTexts, RecordsAreFoundByAnyOfTheirTexts) {
    const FoldedTexts texts = made({{"Gas plant", "Alberta"}, {}, {"Oil", "Sour GAS"}, {"Oil"}});
    EXPECT_EQ(texts.recordsWith("gas"), (Records{0, 2}));
    EXPECT_EQ(texts.recordsWith("OIL"), (Records{2, 3}));
    EXPECT_EQ(texts.recordsWith("a"), (Records{0, 2}));
    EXPECT_EQ(texts.recordsWith("coal"), Records{});
}

TEST(FoldedTexts, WithoutRecordsFindNothing) {
    EXPECT_EQ(made({}).recordsWith("a"), Records{});
    EXPECT_EQ(made({}).bytes(), "");
    EXPECT_EQ(made({{}, {}}).recordsWith("a"), Records{});
}

TEST(FoldedTexts, NothingIsFoundAcrossTextsOrRecords) {
    const FoldedTexts texts = made({{"ab", "cd"}, {"ef"}});
    for (const std::string query : {"bc", "b c", "abcd", "de", "cdef", "ef "}) {
        EXPECT_EQ(texts.recordsWith(query), Records{}) << query;
    }
}

TEST(FoldedTexts, AQueryIsFoundAtEveryPlaceOfATextOfAnyLength) {
    for (const std::string& query : Texts{"z",
                                          "zy",
                                          "zyx",
                                          "zyxw",
                                          "zyxwv",
                                          "zyxwvutsrqponmlkjihgfedcba",
                                          "z" + std::string(300, 'y')}) {
        for (std::size_t before = 0; before < 70; ++before) {
            for (const std::size_t after : {0U, 1U, 31U, 33U}) {
                const std::string text = std::string(before, 'a') + query + std::string(after, 'a');
                ASSERT_EQ(made({{"zx"}, {text}, {"xz"}}).recordsWith(query),
                          expected({{"zx"}, {text}, {"xz"}}, query))
                    << query << ' ' << before << ' ' << after;
            }
        }
    }
}

TEST(FoldedTexts, OnlyWholeCharactersAreFound) {
    const FoldedTexts texts = made({{"x\u0302"}, {"x"}, {"x\u0302x"}, {"\r\n"}});
    EXPECT_EQ(texts.recordsWith("x"), (Records{1, 2}));
    EXPECT_EQ(texts.recordsWith("X\u0302"), (Records{0, 2}));
    EXPECT_EQ(texts.recordsWith("\u0302"), Records{});
    EXPECT_EQ(texts.recordsWith("\n"), Records{});
    EXPECT_EQ(texts.recordsWith("\r\n"), Records{3});
}

TEST(FoldedTexts, FindWhatTheDefinitionFinds) {
    std::mt19937 random(17);
    const Texts pieces = {
        "a", "b", "a", "b", "ab", "x\u0302", "\u0302", "\r", "\n", "\u00E9", "\u4E00"};
    const auto drawn = [&](std::size_t most) {
        std::string text;
        for (auto left = random() % (most + 1); left > 0; --left) {
            text += pieces[random() % (random() % 2 == 0 ? 2 : pieces.size())];
        }
        return text;
    };
    for (int round = 0; round < 3'000; ++round) {
        std::vector<Texts> records(random() % 6);
        for (Texts& texts : records) {
            for (auto left = random() % 4; left > 0; --left) {
                texts.push_back(drawn(90));
            }
        }
        const FoldedTexts texts = made(records);
        for (int each = 0; each < 8; ++each) {
            const std::string query = drawn(9) + "a";
            ASSERT_EQ(texts.recordsWith(query), expected(records, query)) << query;
        }
    }
}

TEST(FoldedTexts, FindLongQueriesAsTheDefinitionDoes) {
    std::mt19937 random(19);
    const Texts pieces = {"a", "b", "x\u0302", "x"};
    for (int round = 0; round < 150; ++round) {
        std::string period;
        for (auto left = 1 + random() % 5; left > 0; --left) {
            period += pieces[random() % pieces.size()];
        }
        std::string text;
        for (auto left = random() % 600; left > 0; --left) {
            text += random() % 200 == 0 ? pieces[random() % pieces.size()] : period;
        }
        const std::vector<Texts> records = {{text}, {text + "a", text + text}, {"b" + text}};
        const FoldedTexts texts = made(records);
        const std::size_t begin = random() % (text.size() + 1);
        for (const std::string& query :
             {text + text + "a", "b" + text + "a", text.substr(begin) + "a"}) {
            ASSERT_EQ(texts.recordsWith(query), expected(records, query)) << query;
        }
    }
}

TEST(FoldedTexts, AMillionPlacesThatAlmostMatchAreSearched) {
    std::string text;
    for (int each = 0; each < 500'000; ++each) {
        text += "x\u0302";
    }
    EXPECT_EQ(made({{text}}).recordsWith("x"), Records{});
    EXPECT_EQ(made({{std::string(1'000'000, 'a')}}).recordsWith(std::string(200, 'a') + "b"),
              Records{});
}

TEST(FoldedTexts, AreNotMadeWhenAStopIsRequested) {
    std::stop_source stop;
    stop.request_stop();
    FoldedTexts texts(english);
    EXPECT_THROW(texts.addText("text", stop.get_token()), Cancelled);
}

} // namespace
} // namespace vasker
