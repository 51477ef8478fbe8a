// The real window while what it draws the basemap from is missing or broken: it opens, shows the
// records, and says nothing that is not so.

#include "app/OpenMapApp.h"
#include "app/OpenMapRoot.h"
#include "app/QmlModules.h"
#include "data/Digest.h"
#include "data/ReleaseWriter.h"
#include "map/view/MapView.h"
#include "tests/app/OpenWindow.h"
#include "tests/support/ReleaseBuilder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

namespace vasker {
namespace {

/// Nobody answers there.
constexpr const char* services = R"({
    "vector": [{"template": "https://127.0.0.1:1/{z}/{x}/{y}", "firstZoom": 0, "lastZoom": 14,
                "attribution": "Maps", "attributionURL": "https://maps.example/"}],
    "imagery": [{"template": "https://127.0.0.1:1/{z}/{y}/{x}", "firstZoom": 0, "lastZoom": 12,
                 "attribution": "Photographs", "attributionURL": "https://photographs.example/"}]
})";

class WindowBasemap : public testing::Test {
  protected:
    [[nodiscard]] QString path(const char* name) const {
        return m_folder.filePath(QString::fromLatin1(name));
    }
    void write(const char* name, const QByteArray& bytes) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    [[nodiscard]] static QByteArray archive(const char* name = "basemap.mbtiles") {
        QFile file(QStringLiteral(VASKER_RESOURCES "/") + QString::fromLatin1(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    void open(const QString& cachePath) {
        OpenMapRelease release = makeRelease();
        release.assets.resize(1); // the facility A-0
        const std::string bytes = encode(release);
        write("OpenMap.json", QByteArray::fromStdString(bytes));
        write("BundleInformation.json",
              R"({"VaskerOpenMapSHA256": ")" + QByteArray::fromStdString(sha256(bytes)) +
                  R"(", "VaskerTileServices": )" + services + "}");
        m_application = std::make_unique<OpenMapApp>(
            Bundle(m_folder.path()), TextLocale("en"), path("preferences"), cachePath);
        m_window = m_application->openWindow();
        auto* const root = m_window->findChild<OpenMapRoot*>();
        ASSERT_NE(root, nullptr);
        ASSERT_TRUE(QTest::qWaitFor([&] { return root->workspace() != nullptr; }, 10'000));
        m_workspace = root->workspace();
        m_window->requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window));
        ASSERT_TRUE(QTest::qWaitFor([&] {
            m_map = m_window->findChild<MapView*>();
            return m_map != nullptr;
        }));
        ASSERT_TRUE(QTest::qWaitFor([&] { return m_map->isComplete(); }, 20'000));
    }

    void expectRecords() const {
        const OpenMapRelease::Asset facility = makeAsset();
        const ScreenPoint tip = m_map->resolvedCamera().worldToScreen(
            coordinateToMapPoint({facility.latitude, facility.longitude}));
        // There it is hit as a pin, and as a dot where a pin would cover a name.
        const QPointF place = m_map->mapToScene({tip.x, tip.y - 3});
        QTest::mouseClick(m_window, Qt::LeftButton, {}, place.toPoint());
        EXPECT_EQ(m_workspace->selection(), QStringLiteral("A-0"));
    }
    [[nodiscard]] QStringList attribution() const {
        QStringList texts;
        for (const QVariant& credit : m_map->status()->attribution()) {
            texts.append(credit.toMap().value(QStringLiteral("text")).toString());
        }
        return texts;
    }
    [[nodiscard]] bool says(const QString& text) const {
        const auto items = m_map->findChildren<QQuickItem*>();
        return std::ranges::any_of(items, [&text](const QQuickItem* item) {
            return item->isVisible() && item->property("text").toString() == text;
        });
    }
    /// Nothing of the basemap is seen, and so nobody is credited.
    void expectRecordsAlone() {
        open(path("cache"));
        ASSERT_NE(m_map, nullptr);
        EXPECT_EQ(attribution(), QStringList());
        EXPECT_FALSE(m_map->status()->lacksImagery());
        expectRecords();
        m_workspace->setBasemap(QStringLiteral("satellite"));
        ASSERT_TRUE(QTest::qWaitFor([&] { return m_map->status()->lacksImagery(); }));
        EXPECT_EQ(attribution(), QStringList());
    }
    /// The basemap is seen as if there were a cache.
    void expectBasemap(const QString& cachePath) {
        write("basemap.mbtiles", archive());
        open(cachePath);
        ASSERT_NE(m_map, nullptr);
        EXPECT_EQ(attribution(), QStringList(QStringLiteral("Made with Natural Earth")));
        EXPECT_FALSE(m_map->status()->lacksImagery());
        expectRecords();
    }

    QTemporaryDir m_folder;
    std::unique_ptr<OpenMapApp> m_application;
    QQuickWindow* m_window = nullptr;
    OpenMapWorkspace* m_workspace = nullptr;
    MapView* m_map = nullptr;
};

TEST_F(WindowBasemap, WithoutAnArchiveShowsTheRecordsAlone) {
    expectRecordsAlone();
}

TEST_F(WindowBasemap, WithAnArchiveThatBreaksOffShowsTheRecordsAlone) {
    write("basemap.mbtiles", archive().left(6'000));
    expectRecordsAlone();
}

TEST_F(WindowBasemap, WithAnArchiveThatBreaksOffInItsMiddleStillShowsTheRecords) {
    const QByteArray whole = archive();
    write("basemap.mbtiles", whole.left(whole.size() / 2));
    open(path("cache"));
    ASSERT_NE(m_map, nullptr);
    expectRecords();
}

TEST_F(WindowBasemap, WithAnEmptyArchiveShowsTheRecordsAlone) {
    write("basemap.mbtiles", {});
    expectRecordsAlone();
}

TEST_F(WindowBasemap, WithGarbageInPlaceOfAnArchiveShowsTheRecordsAlone) {
    write("basemap.mbtiles", QByteArray(50'000, 'g'));
    expectRecordsAlone();
}

TEST_F(WindowBasemap, WithAFolderInPlaceOfAnArchiveShowsTheRecordsAlone) {
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("basemap.mbtiles")));
    expectRecordsAlone();
}

TEST_F(WindowBasemap, WithoutANetworkShowsTheBuiltInImageryAndSaysWhereItIsOnlyColour) {
    const QString note = QStringLiteral("Sharper imagery needs a network connection");
    const QString imagery = QStringLiteral("NASA Blue Marble");
    write("basemap.mbtiles", archive());
    write("imagery.mbtiles", archive("imagery.mbtiles"));
    open(path("cache"));
    ASSERT_NE(m_map, nullptr);
    m_workspace->setBasemap(QStringLiteral("satellite"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return attribution() == QStringList(imagery); }, 20'000));
    EXPECT_FALSE(m_map->status()->lacksImagery());
    EXPECT_FALSE(m_map->status()->lacksSharperImagery());
    m_workspace->setSelection(QStringLiteral("A-0")); // the map comes near
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_map->status()->lacksSharperImagery(); }, 20'000));
    EXPECT_EQ(attribution(), QStringList({imagery, QStringLiteral("Made with Natural Earth")}));
    EXPECT_FALSE(m_map->status()->lacksImagery());
    EXPECT_TRUE(QTest::qWaitFor([&] { return says(note); }, 10'000));
}

TEST_F(WindowBasemap, InANarrowWindowTheAttributionStandsWholeBesideTheInspector) {
    write("basemap.mbtiles", archive());
    open(path("cache"));
    ASSERT_NE(m_map, nullptr);
    m_window->resize(900, 620);
    m_workspace->setSelection(QStringLiteral("A-0"));
    const QQuickItem* const credit = find(m_map, QStringLiteral("open-map-credit-0"));
    ASSERT_NE(credit, nullptr);
    const auto isWhole = [&] {
        const QRectF place = credit->mapRectToItem(m_map, credit->boundingRect());
        const double covered = m_map->resolvedCamera().viewport().coveredLeft;
        return covered > 0 && place.left() >= covered && place.right() <= m_map->width();
    };
    EXPECT_TRUE(QTest::qWaitFor(isWhole));
}

TEST_F(WindowBasemap, NeedsNoCacheThatCanBeWritten) {
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("cache")));
    ASSERT_TRUE(
        QFile::setPermissions(path("cache"), QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    expectBasemap(path("cache"));
    QFile::setPermissions(path("cache"),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

TEST_F(WindowBasemap, NeedsNoCacheWhereAFileStandsInItsPlace) {
    write("cache", "a file");
    expectBasemap(path("cache"));
    QFile file(path("cache"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "a file");
}

TEST_F(WindowBasemap, NeedsNoCacheWhereNoneCanBeMade) {
    expectBasemap(QStringLiteral("/proc/vasker/cache"));
}

TEST_F(WindowBasemap, NeedsNoWholeCache) {
    ASSERT_TRUE(QDir(m_folder.path()).mkpath(QStringLiteral("cache/tiles")));
    write("cache/tiles/tiles.sqlite", QByteArray(50'000, 'g'));
    expectBasemap(path("cache"));
}

} // namespace
} // namespace vasker
