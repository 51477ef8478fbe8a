#include "map/catalogue/RecordListModel.h"

#include "map/catalogue/FoundText.h"
#include "presentation/Symbols.h"
#include "tests/support/ReleaseBuilder.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace vasker {
namespace {

using Role = RecordListModel::Role;

class RecordList : public testing::Test {
  protected:
    RecordList() {
        OpenMapRelease release = makeRelease();
        release.assets = {makeAsset(0), makeAsset(1), makeAsset(2)};
        release.assets[0].name = "Alder <b>& Sons</b>";
        release.assets[1].name = "Birch";
        release.assets[1].kind = "Compressor_station";
        release.assets[1].asOf = "March 2025";
        release.assets[2].name = "Cedar % %1";
        release.assets[0].facts = {fact("reported unit", "lower case"),
                                   fact("Reported unit ", "trailing blank")};
        release.assets[1].facts = {fact("Other", "no unit"),
                                   fact("Reported unit", "first"),
                                   fact("Reported unit", "second")};
        m_loaded = std::make_shared<const LoadedRelease>(
            std::make_shared<const OpenMapRelease>(std::move(release)), TextLocale("en"));
        show({0, 1, 2});
    }
    static OpenMapRelease::Fact fact(std::string label, std::string value) {
        OpenMapRelease::Fact made = makeFact(std::move(value));
        made.label = std::move(label);
        return made;
    }
    void show(std::vector<AssetIndex> rows) {
        m_model.setRecords(
            {m_loaded, std::make_shared<const std::vector<AssetIndex>>(std::move(rows))});
    }
    void search(const QString& query) { m_model.show(m_model.records(), query); }
    [[nodiscard]] std::string text(int row, Role role) const {
        return m_model.data(m_model.index(row), role).toString().toStdString();
    }
    [[nodiscard]] FoundText found(int row) const {
        return m_model.data(m_model.index(row), Role::FoundRole).value<FoundText>();
    }
    [[nodiscard]] int number(int row, Role role) const {
        return m_model.data(m_model.index(row), role).toInt();
    }

    std::shared_ptr<const LoadedRelease> m_loaded;
    RecordListModel m_model;
    QAbstractItemModelTester m_tester{&m_model,
                                      QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(RecordList, FindsARowByTheBeginningOfItsNameWithoutAccentsAndCapitals) {
    EXPECT_EQ(m_model.rowBeginning(QStringLiteral("b")), 1);
    EXPECT_EQ(m_model.rowBeginning(QStringLiteral("\u00c7ed")), 2);
    EXPECT_EQ(m_model.rowBeginning(QStringLiteral("edar")), -1);
    show({2});
    EXPECT_EQ(m_model.rowBeginning(QStringLiteral("c")), 0);
    EXPECT_EQ(m_model.rowBeginning(QStringLiteral("b")), -1);
}

TEST(RecordListBeforeLoading, IsEmptyAndCountsNothing) {
    const RecordListModel model;
    EXPECT_TRUE(model.isEmpty());
    EXPECT_EQ(model.rowBeginning(QStringLiteral("a")), -1);
    EXPECT_EQ(model.countText(), QStringLiteral("0 of 0 records"));
    EXPECT_EQ(model.idAt(0), QString());
}

TEST_F(RecordList, ARowShowsAScreenfulOfTextsWithoutABound) {
    OpenMapRelease release = makeRelease();
    release.assets[0].kind = release.assets[0].asOf = std::string(1'000'000, 'x');
    release.assets[0].facts = {fact("Reported unit", std::string(1'000'000, 'y'))};
    m_loaded = std::make_shared<const LoadedRelease>(
        std::make_shared<const OpenMapRelease>(std::move(release)), TextLocale("en"));
    show({0});
    for (const Role role : {Role::CategoryRole, Role::UnitRole, Role::AccessibleRole}) {
        EXPECT_LT(text(0, role).size(), 22'000U);
    }
}

TEST_F(RecordList, RowsAreTheFilteredRecordsInTheirOrder) {
    show({2, 0});
    EXPECT_EQ(m_model.rowCount(), 2);
    EXPECT_EQ(text(0, Role::IdRole), "A-2");
    EXPECT_EQ(text(1, Role::IdRole), "A-0");
}

TEST_F(RecordList, ANameIsShownVerbatim) {
    EXPECT_EQ(text(0, Role::NameRole), "Alder <b>& Sons</b>");
    EXPECT_EQ(text(2, Role::NameRole), "Cedar % %1");
}

TEST_F(RecordList, TheUnitIsTheFirstFactWithExactlyThatLabel) {
    EXPECT_EQ(text(0, Role::UnitRole), "");
    EXPECT_EQ(text(1, Role::UnitRole), "first");
    EXPECT_EQ(text(2, Role::UnitRole), "");
}

TEST_F(RecordList, TheCategoryAndThePeriodShareALine) {
    EXPECT_EQ(text(0, Role::CategoryRole), "Gas plant · 2016");
    EXPECT_EQ(text(1, Role::CategoryRole), "Compressor_station · March 2025");
}

TEST_F(RecordList, TheMarkFollowsTheRawKind) {
    EXPECT_EQ(text(0, Role::SymbolRole), "flame");
    EXPECT_EQ(number(0, Role::TintRole), static_cast<int>(PaletteColor::blue));
    EXPECT_EQ(text(1, Role::SymbolRole), "mappin");
    EXPECT_EQ(number(1, Role::TintRole), static_cast<int>(PaletteColor::gray));
}

TEST_F(RecordList, TheAccessibleTextSaysNameCategoryAndPeriod) {
    EXPECT_EQ(text(0, Role::AccessibleRole), "Alder <b>& Sons</b>, Gas plant, source period 2016");
    EXPECT_EQ(text(2, Role::AccessibleRole), "Cedar % %1, Gas plant, source period 2016");
}

TEST_F(RecordList, TheCountLineTellsShownAndAllRecordsAsPlainNumbers) {
    EXPECT_EQ(m_model.countText(), QStringLiteral("3 of 3 records"));
    show({1});
    EXPECT_EQ(m_model.countText(), QStringLiteral("1 of 3 records"));
    show({});
    EXPECT_EQ(m_model.countText(), QStringLiteral("0 of 3 records"));
    EXPECT_TRUE(m_model.isEmpty());
}

TEST_F(RecordList, TheEmptyTitleNamesTheSearchText) {
    EXPECT_EQ(m_model.emptyTitle(), QStringLiteral("No results"));
    search(QStringLiteral("<b>%1"));
    EXPECT_EQ(m_model.emptyTitle(), QStringLiteral("No results for “<b>%1”"));
}

TEST_F(RecordList, OnlyAMatchedNameHasMarkup) {
    EXPECT_EQ(text(0, Role::MarkupRole), "");
    search(QStringLiteral("SONS"));
    EXPECT_EQ(text(0, Role::MarkupRole), "Alder &lt;b&gt;&amp; <b>Sons</b>&lt;/b&gt;");
    EXPECT_EQ(text(1, Role::MarkupRole), "");
}

TEST_F(RecordList, ARowWhoseNameHoldsNoMatchSaysWhereTheMatchIs) {
    search(QStringLiteral("FIRST"));
    EXPECT_EQ(found(1).markup, QStringLiteral("Reported unit: <b>first</b>"));
    EXPECT_EQ(found(1).spoken, QStringLiteral("Found in Reported unit: first"));
    EXPECT_EQ(text(1, Role::AccessibleRole), "Birch, Compressor_station, source period March 2025");
    search(QStringLiteral("birch"));
    EXPECT_EQ(found(1).markup, QString());
    EXPECT_EQ(found(1).spoken, QString());
}

TEST_F(RecordList, AQueryTellsTheViewsToShowMarkupAnew) {
    const QSignalSpy spy(&m_model, &RecordListModel::dataChanged);
    search(QStringLiteral("b"));
    ASSERT_EQ(spy.size(), 1);
    EXPECT_EQ(spy[0][2].value<QList<int>>(), (QList<int>{Role::MarkupRole, Role::FoundRole}));
}

TEST_F(RecordList, AFilterAnnouncesEachRowOnce) {
    RecordFilter filter(m_loaded);
    m_model.setFilter(&filter);
    EXPECT_EQ(m_model.rowCount(), 3);
    const QSignalSpy spy(&m_model, &RecordListModel::dataChanged);
    filter.setQuery(QStringLiteral("birch"));
    EXPECT_EQ(spy.size(), 1);
    ASSERT_EQ(m_model.rowCount(), 1);
    EXPECT_EQ(text(0, Role::MarkupRole), "<b>Birch</b>");
    filter.setQuery(QString());
    EXPECT_EQ(m_model.rowCount(), 3);
    EXPECT_EQ(text(0, Role::MarkupRole), "");
}

TEST_F(RecordList, TheSelectedRowFollowsTheRecord) {
    m_model.setSelection(QStringLiteral("A-2"));
    EXPECT_EQ(m_model.selectedRow(), 2);
    show({2, 1});
    EXPECT_EQ(m_model.selectedRow(), 0);
    show({1});
    EXPECT_EQ(m_model.selectedRow(), -1);
    m_model.setSelection(QString());
    EXPECT_EQ(m_model.selectedRow(), -1);
}

TEST_F(RecordList, IdsAndRowsAnswerEachOther) {
    show({2, 0});
    EXPECT_EQ(m_model.idAt(1), QStringLiteral("A-0"));
    EXPECT_EQ(m_model.idAt(2), QString());
    EXPECT_EQ(m_model.idAt(-1), QString());
    EXPECT_EQ(m_model.rowOf(QStringLiteral("A-0")), 1);
    EXPECT_EQ(m_model.rowOf(QStringLiteral("A-1")), -1);
    EXPECT_EQ(m_model.rowOf(QStringLiteral("a-0")), -1);
}

} // namespace
} // namespace vasker
