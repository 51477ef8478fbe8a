#include "platform/accessibility/RowOrder.h"

#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

namespace vasker {
namespace {

std::vector<int> positions(const QQuickItem& list) {
    std::vector<int> found;
    for (const QQuickItem* const row : list.childItems()) {
        found.push_back(row->property("positionInSet").toInt());
    }
    return found;
}

class RowOrderTest : public testing::Test {
  protected:
    RowOrderTest() { order.setProperty("parentOfRows", QVariant::fromValue(&list)); }

    QQuickItem* add(int position) {
        auto* const row = new QQuickItem(&list);
        row->setParent(&list);
        row->setProperty("positionInSet", position);
        return row;
    }

    QQuickItem list;
    RowOrder order;
};

TEST_F(RowOrderTest, RowsStandInTheOrderOfTheirPositions) {
    for (const int position : {3, 1, 4, 2}) {
        add(position);
    }
    order.refresh();
    EXPECT_TRUE(QTest::qWaitFor([&] { return positions(list) == std::vector{1, 2, 3, 4}; }));
}

TEST_F(RowOrderTest, ARowThatIsReusedGoesToItsNewPlace) {
    QQuickItem* const first = add(1);
    add(2);
    add(3);
    first->setProperty("positionInSet", 4);
    order.refresh();
    EXPECT_TRUE(QTest::qWaitFor([&] { return positions(list) == std::vector{2, 3, 4}; }));
}

TEST_F(RowOrderTest, WhatIsNoRowStaysWhereItIs) {
    add(0);
    add(2);
    add(1);
    order.refresh();
    EXPECT_TRUE(QTest::qWaitFor([&] { return positions(list) == std::vector{0, 1, 2}; }));
}

TEST(RowOrder, WithoutAListNothingHappens) {
    RowOrder order;
    {
        QQuickItem gone;
        order.setProperty("parentOfRows", QVariant::fromValue(&gone));
    }
    order.refresh();
    QTest::qWait(150);
    EXPECT_EQ(order.property("parentOfRows").value<QQuickItem*>(), nullptr);
}

} // namespace
} // namespace vasker
