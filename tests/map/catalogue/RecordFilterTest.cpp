#include "map/catalogue/RecordFilter.h"

#include "tests/support/ReleaseBuilder.h"

#include <gtest/gtest.h>

namespace vasker {
namespace {

std::shared_ptr<const LoadedRelease> loaded() {
    return std::make_shared<const LoadedRelease>(
        std::make_shared<const OpenMapRelease>(makeReleaseOfNamesakes()), TextLocale("en_CA"));
}

class RecordFilterTest : public testing::Test {
  protected:
    [[nodiscard]] std::string shown() const {
        std::string ids;
        for (const AssetIndex index : m_filter.filtered()) {
            ids += (ids.empty() ? "" : " ") + m_loaded->index.release().assets[index].id;
        }
        return ids;
    }

    std::shared_ptr<const LoadedRelease> m_loaded = loaded();
    RecordFilter m_filter{m_loaded};
};

TEST_F(RecordFilterTest, ShowsAllByNameUntilItIsToldOtherwise) {
    EXPECT_EQ(m_filter.query(), QString());
    EXPECT_EQ(m_filter.kind(), QStringLiteral("all"));
    EXPECT_EQ(shown(), "line two ten twin-b twin-a");
}

TEST_F(RecordFilterTest, TheKindAndTheQueryBothNarrowTheList) {
    m_filter.setKind(QStringLiteral("refinery"));
    EXPECT_EQ(shown(), "ten twin-a");
    m_filter.setQuery(QStringLiteral("TWIN"));
    EXPECT_EQ(shown(), "twin-a");
    m_filter.setKind(QStringLiteral("all"));
    EXPECT_EQ(shown(), "twin-b twin-a");
}

TEST_F(RecordFilterTest, CountsWhatTheQueryFindsOfEachKindWhateverIsChosen) {
    EXPECT_EQ(m_filter.counts(), (QList<int>{1, 1, 1, 2}));
    m_filter.setKind(QStringLiteral("Zinc"));
    m_filter.setQuery(QStringLiteral("twin"));
    EXPECT_EQ(m_filter.counts(), (QList<int>{0, 1, 0, 1}));
}

TEST_F(RecordFilterTest, AKindThatNoRecordHasShowsNothing) {
    m_filter.setKind(QStringLiteral("zinc"));
    EXPECT_EQ(shown(), "");
}

TEST_F(RecordFilterTest, TheQueryIsNotTrimmed) {
    m_filter.setQuery(QStringLiteral(" 2"));
    EXPECT_EQ(shown(), "two");
    m_filter.setQuery(QStringLiteral(" 2 "));
    EXPECT_EQ(shown(), "");
}

TEST_F(RecordFilterTest, TheRecordsForTheViewsChangeOnlyWhenTheListDoes) {
    int changes = 0;
    QObject::connect(&m_filter, &RecordFilter::recordsChanged, [&] { ++changes; });
    m_filter.setQuery(QStringLiteral("twi"));
    m_filter.setQuery(QStringLiteral("twin"));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(m_filter.records().filtered->size(), 2);
}

TEST_F(RecordFilterTest, AChangeIsAnnouncedWhenAllThatFollowsFromItIsInPlace) {
    std::vector<std::string> story;
    const auto note = [&](const char* what) {
        return [&, what] {
            story.push_back(std::string(what) + ": " + shown() + ", " +
                            std::to_string(m_filter.counts().at(3)));
        };
    };
    QObject::connect(&m_filter, &RecordFilter::queryChanged, note("query"));
    QObject::connect(&m_filter, &RecordFilter::kindChanged, note("kind"));
    QObject::connect(&m_filter, &RecordFilter::recordsChanged, note("records"));
    QObject::connect(&m_filter, &RecordFilter::countsChanged, note("counts"));
    QObject::connect(&m_filter, &RecordFilter::changed, note("all"));
    m_filter.setQuery(QStringLiteral("twin"));
    m_filter.setKind(QStringLiteral("refinery"));
    EXPECT_EQ(story,
              (std::vector<std::string>{"records: twin-b twin-a, 1",
                                        "query: twin-b twin-a, 1",
                                        "counts: twin-b twin-a, 1",
                                        "all: twin-b twin-a, 1",
                                        "records: twin-a, 1",
                                        "kind: twin-a, 1",
                                        "all: twin-a, 1"}));
}

TEST_F(RecordFilterTest, WhatStaysTheSameIsNotAnnounced) {
    int changes = 0;
    const auto count = [&] { ++changes; };
    m_filter.setQuery(QStringLiteral("twi"));
    QObject::connect(&m_filter, &RecordFilter::recordsChanged, count);
    QObject::connect(&m_filter, &RecordFilter::countsChanged, count);
    m_filter.setQuery(QStringLiteral("twin"));
    QObject::connect(&m_filter, &RecordFilter::queryChanged, count);
    QObject::connect(&m_filter, &RecordFilter::kindChanged, count);
    m_filter.setQuery(QStringLiteral("twin"));
    m_filter.setKind(QStringLiteral("all"));
    EXPECT_EQ(changes, 0);
}

} // namespace
} // namespace vasker
