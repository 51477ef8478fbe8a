#include "map/catalogue/KindListModel.h"

#include "presentation/Symbols.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

namespace vasker {
namespace {

class KindList : public testing::Test {
  protected:
    KindList() {
        m_model.setKinds({QStringLiteral("LNG"),
                          QStringLiteral("gas_plant"),
                          QStringLiteral("oil_sands_insitu"),
                          QStringLiteral("other")});
    }
    [[nodiscard]] std::string entries() const {
        std::string text;
        for (int row = 0; row < m_model.rowCount(); ++row) {
            text += m_model.valueAt(row).toStdString() + "=" +
                    m_model.data(m_model.index(row), KindListModel::LabelRole)
                        .toString()
                        .toStdString() +
                    "\n";
        }
        return text;
    }

    KindListModel m_model;
    QAbstractItemModelTester m_tester{&m_model,
                                      QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(KindList, AllCategoriesComeFirstAndTheKindsInTheOrderGiven) {
    EXPECT_EQ(entries(),
              "all=All categories\n"
              "LNG=Lng\n"
              "gas_plant=Gas plant\n"
              "oil_sands_insitu=In-situ oil sands\n"
              "other=Unclassified facility\n");
}

TEST_F(KindList, AllCategoriesAreOfferedEvenWithoutKinds) {
    m_model.setKinds({});
    EXPECT_EQ(entries(), "all=All categories\n");
}

TEST_F(KindList, TheChosenEntryIsTheOneOfTheKind) {
    EXPECT_EQ(m_model.currentRow(), 0);
    EXPECT_EQ(m_model.currentLabel(), QStringLiteral("All categories"));
    m_model.setKind(QStringLiteral("gas_plant"));
    EXPECT_EQ(m_model.currentRow(), 2);
    EXPECT_EQ(m_model.currentLabel(), QStringLiteral("Gas plant"));
}

TEST_F(KindList, AKindThatIsNotOfferedIsStillNamed) {
    m_model.setKind(QStringLiteral("refinery"));
    EXPECT_EQ(m_model.currentRow(), -1);
    EXPECT_EQ(m_model.currentLabel(), QStringLiteral("Refinery"));
}

TEST_F(KindList, EachEntryTellsHowManyRecordsItHoldsAndAllCategoriesTheirSum) {
    int told = 0;
    QObject::connect(&m_model, &KindListModel::dataChanged, [&] { ++told; });
    m_model.setCounts({3, 0, 12, 4830});
    EXPECT_EQ(told, 1);
    std::string counts;
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const QModelIndex entry = m_model.index(row);
        counts += m_model.data(entry, KindListModel::CountRole).toString().toStdString() + " ";
    }
    EXPECT_EQ(counts, "4845 3 0 12 4830 ");
    EXPECT_EQ(m_model.data(m_model.index(3), KindListModel::CountTextRole).toString(),
              QStringLiteral("Records: 12"));
}

TEST_F(KindList, EachEntryHasTheMarkOfItsRecordsAndAllCategoriesNone) {
    std::string marks;
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const QModelIndex entry = m_model.index(row);
        marks += m_model.data(entry, KindListModel::SymbolRole).toString().toStdString() + "/" +
                 std::to_string(m_model.data(entry, KindListModel::TintRole).toInt()) + " ";
    }
    const auto tint = [](PaletteColor color) { return std::to_string(static_cast<int>(color)); };
    const std::string gray = tint(PaletteColor::gray);
    EXPECT_EQ(marks,
              "/" + gray + " mappin/" + gray + " flame/" + tint(PaletteColor::blue) +
                  " arrow.down.to.line/" + tint(PaletteColor::orange) + " mappin/" + gray + " ");
}

TEST_F(KindList, TheChosenEntryTellsItsMark) {
    EXPECT_EQ(m_model.currentSymbol(), QString());
    m_model.setKind(QStringLiteral("gas_plant"));
    EXPECT_EQ(m_model.currentSymbol(), QStringLiteral("flame"));
    EXPECT_EQ(m_model.currentTint(), static_cast<int>(PaletteColor::blue));
    m_model.setKind(QStringLiteral("refinery"));
    EXPECT_EQ(m_model.currentSymbol(), QStringLiteral("gearshape.2"));
}

TEST_F(KindList, TheLabelsForFirstLettersAreThoseOfTheEntries) {
    EXPECT_EQ(m_model.labels(),
              (QList<QString>{QStringLiteral("All categories"),
                              QStringLiteral("Lng"),
                              QStringLiteral("Gas plant"),
                              QStringLiteral("In-situ oil sands"),
                              QStringLiteral("Unclassified facility")}));
}

TEST_F(KindList, ThereIsNoValueOutsideTheList) {
    EXPECT_EQ(m_model.valueAt(-1), QString());
    EXPECT_EQ(m_model.valueAt(5), QString());
}

} // namespace
} // namespace vasker
