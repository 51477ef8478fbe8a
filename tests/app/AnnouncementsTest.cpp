#include "app/Announcements.h"

#include "tests/app/OpenWindow.h"

#include <QSignalSpy>

namespace vasker {
namespace {

class AnnouncementsTest : public OpenWindow {
  protected:
    // What the window says from now on.
    void listen() {
        auto* const announcements = m_window->findChild<Announcements*>();
        ASSERT_NE(announcements, nullptr);
        m_spoken.emplace(announcements, &Announcements::spoken);
    }
    [[nodiscard]] QStringList spoken() const {
        QStringList texts;
        for (const QVariantList& each : *m_spoken) {
            texts.append(each.constFirst().toString());
        }
        return texts;
    }
    void expectSpoken(const QStringList& expected) const {
        EXPECT_TRUE(QTest::qWaitFor([&] { return spoken().size() >= expected.size(); }));
        QTest::qWait(50);
        EXPECT_EQ(spoken(), expected);
    }

    std::optional<QSignalSpy> m_spoken;
};

TEST_F(AnnouncementsTest, ALoadTellsHowManyRecordsThereAre) {
    open(encode(longRelease()));
    Announcements late;
    m_spoken.emplace(&late, &Announcements::spoken);
    late.setRoot(m_root);
    expectSpoken({QStringLiteral("The map is open: 300 records")});
}

TEST_F(AnnouncementsTest, AFailureIsToldWithItsReason) {
    open("no release");
    Announcements late;
    m_spoken.emplace(&late, &Announcements::spoken);
    late.setRoot(m_root);
    expectSpoken({QStringLiteral("Map unavailable. ") + m_root->failureText()});
}

TEST_F(AnnouncementsTest, ASearchIsToldOnceItHasSettled) {
    openRecords();
    listen();
    for (const auto* query : {"p", "pl", "plant 29"}) {
        workspace().setQuery(QString::fromLatin1(query));
        QTest::qWait(100);
    }
    EXPECT_TRUE(spoken().isEmpty());
    expectSpoken({QStringLiteral("11 of 300 records")});
}

TEST_F(AnnouncementsTest, ASearchWithoutResultsIsToldToo) {
    openRecords();
    listen();
    workspace().setQuery(QStringLiteral("nowhere"));
    expectSpoken({QStringLiteral("No results for “nowhere”")});
}

TEST_F(AnnouncementsTest, AnotherCategoryTellsItsNumber) {
    openRecords();
    listen();
    workspace().setKind(QStringLiteral("refinery"));
    expectSpoken({QStringLiteral("30 of 300 records")});
}

TEST_F(AnnouncementsTest, ARecordPickedOnTheMapIsTold) {
    openRecords();
    listen();
    workspace().pickOnMap(QStringLiteral("A-11"));
    expectSpoken({QStringLiteral("Picked: Plant 11, Gas plant")});
    EXPECT_EQ(selection(), "A-11");
}

TEST_F(AnnouncementsTest, ThePickOfNoneIsNotTold) {
    openRecords();
    listen();
    workspace().pickOnMap(QString());
    workspace().setSelection(QStringLiteral("A-11"));
    QTest::qWait(100);
    EXPECT_TRUE(spoken().isEmpty());
}

TEST_F(AnnouncementsTest, AnotherBasemapIsTold) {
    openRecords();
    listen();
    workspace().setBasemap(QStringLiteral("satellite"));
    workspace().setBasemap(QStringLiteral("a later one"));
    workspace().setBasemap(QStringLiteral("standard"));
    expectSpoken({QStringLiteral("Basemap: Satellite"), QStringLiteral("Basemap: Map")});
}

} // namespace
} // namespace vasker
