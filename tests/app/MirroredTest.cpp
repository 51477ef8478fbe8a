// The window where lines begin at the right.

#include "tests/app/OpenSheets.h"

#include <QGuiApplication>

#include <algorithm>

namespace vasker {
namespace {

class Mirrored : public OpenSheets {
  protected:
    void SetUp() override {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        OpenSheets::SetUp();
    }
    void TearDown() override {
        OpenSheets::TearDown();
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }
    [[nodiscard]] const QQuickItem* scaleBar() const {
        const auto all = reachable();
        const auto found = std::ranges::find_if(all, [](QAccessibleInterface* access) {
            return nameOf(access).startsWith(QStringLiteral("Scale: "));
        });
        return qobject_cast<QQuickItem*>((*found)->object());
    }
    [[nodiscard]] double mapProperty(const char* name) const {
        return item("open-map-canvas")->property(name).toDouble();
    }
};

TEST_F(Mirrored, TheCatalogueIsAtTheRightAndTheMapWithItsControlsTurnedAround) {
    EXPECT_EQ(place(item("open-map-canvas")).left(), 0);
    EXPECT_EQ(place(item("open-map-canvas")).right(), 1280 - 321);
    EXPECT_EQ(place(item("open-map-records")).right(), 1280);
    EXPECT_EQ(place(item("open-map-layer")).right(), 1280 - 12);
    EXPECT_EQ(place(item("open-map-count")).right(), 1280 - 8);
    EXPECT_EQ(place(item("open-map-menu")).left(), 12);
    EXPECT_EQ(place(item("open-map-compass")).left(), 12);
    EXPECT_GT(place(item("open-map-options")).left(), place(item("open-map-sources")).left());
    EXPECT_NEAR(place(scaleBar()).right(), 1280 - 321 - 14, 0.01);
}

TEST_F(Mirrored, TheInspectorStandsAtTheLeftAndWithoutRoomOverTheCatalogue) {
    openInspector("A-7");
    EXPECT_EQ(place(item("open-map-inspector")), QRectF(16, 16, 560, 768));
    EXPECT_EQ(mapProperty("coveredLeft"), 576);
    EXPECT_EQ(mapProperty("coveredRight"), 0);
    resize(1215, 800);
    EXPECT_EQ(place(item("open-map-inspector")), QRectF(1215 - 576, 16, 560, 768));
    EXPECT_EQ(mapProperty("coveredLeft"), 0);
    EXPECT_EQ(mapProperty("coveredRight"), 576 - 321);
}

TEST_F(Mirrored, AMenuBeginsWhereItsButtonBegins) {
    constexpr double padding = 6; // around its rows
    const QQuickItem* const button = item("open-map-options");
    item("open-map-options")->forceActiveFocus();
    key(Qt::Key_Return);
    const QQuickItem* const rows = m_window->activeFocusItem();
    ASSERT_NE(rows, button);
    EXPECT_NEAR(place(rows->parentItem()).right(), place(button).right() - padding, 1);
    key(Qt::Key_Escape);
    // At the edge of the window it ends where its button ends.
    item("open-map-menu")->forceActiveFocus();
    key(Qt::Key_Return);
    EXPECT_EQ(place(m_window->activeFocusItem()->parentItem()).left(), 12 + padding);
}

TEST_F(Mirrored, ALabelStandsBeforeItsValue) {
    openInspector("A-7");
    const QQuickItem* const row = named(QAccessible::StaticText, "Source period: 2016");
    ASSERT_NE(row, nullptr);
    QQuickItem* const label = withText(m_window->contentItem(), QStringLiteral("Source period"));
    QQuickItem* const value = withText(item("open-map-inspector"), QStringLiteral("2016"));
    ASSERT_NE(label, nullptr);
    ASSERT_NE(value, nullptr);
    EXPECT_NEAR(place(label).right(), place(row).right() - 14, 0.01);
    EXPECT_NEAR(place(value).left(), place(row).left() + 14, 0.01);
}

class NameOfTheOtherDirection : public OpenWindow,
                                public testing::WithParamInterface<Qt::LayoutDirection> {
  protected:
    void SetUp() override {
        QGuiApplication::setLayoutDirection(GetParam());
        OpenMapRelease release = makeRelease();
        release.assets[0].name = name().toStdString();
        release.assets[0].facts = {makeFact("21252")};
        open(encode(release));
        ASSERT_TRUE(QTest::qWaitFor([&] { return item("open-map-record-A-0") != nullptr; }));
    }
    void TearDown() override { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
    /// "Refinery", in Arabic.
    [[nodiscard]] static QString name() { return QStringLiteral("\u0645\u0635\u0641\u0627\u0629"); }
    [[nodiscard]] static int alignment(QQuickItem* shown) {
        return shown == nullptr ? 0 : shown->property("effectiveHorizontalAlignment").toInt();
    }
};

INSTANTIATE_TEST_SUITE_P(Directions,
                         NameOfTheOtherDirection,
                         testing::Values(Qt::LeftToRight, Qt::RightToLeft));

TEST_P(NameOfTheOtherDirection, IsAlignedWithTheWindowInRowAndInspector) {
    const int expected = GetParam() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    EXPECT_EQ(alignment(withText(item("open-map-record-A-0"), name())), expected);
    workspace().setSelection(QStringLiteral("A-0"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return item("open-map-inspector") != nullptr; }));
    EXPECT_EQ(alignment(withText(item("open-map-inspector"), name())), expected);
}

TEST_P(NameOfTheOtherDirection, LeavesDigitsBelowTheirLabel) {
    workspace().setSelection(QStringLiteral("A-0"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return item("open-map-inspector") != nullptr; }));
    const auto shown = [this](const char* text) {
        return withText(item("open-map-inspector"), QString::fromLatin1(text));
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return shown("21252") != nullptr; }));
    m_window->grabWindow(); // a picture is drawn when all in it has its place
    const QQuickItem* const label = shown("Sulphur dioxide");
    const QQuickItem* const digits = shown("21252");
    ASSERT_NE(label, nullptr);
    const auto placeOf = [](const QQuickItem& item) {
        return item.mapRectToScene({0, 0, item.width(), item.height()});
    };
    const QRectF above = placeOf(*label);
    const QRectF below = placeOf(*digits); // without the room for a cursor behind them
    if (GetParam() == Qt::RightToLeft) {
        EXPECT_LT(below.width(), 100); // no wider than their text
        EXPECT_NEAR(below.right(), above.right(), 0.01);
    } else {
        EXPECT_NEAR(below.left(), above.left(), 0.01);
    }
}

} // namespace
} // namespace vasker
