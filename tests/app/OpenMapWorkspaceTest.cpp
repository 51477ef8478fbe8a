#include "app/OpenMapWorkspace.h"

#include "map/records/Framing.h"
#include "platform/files/Preferences.h"
#include "tests/support/ReleaseBuilder.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vasker {
namespace {

std::shared_ptr<const LoadedRelease> loaded() {
    OpenMapRelease release = makeReleaseOfNamesakes();
    release.assets[0].longitude = -100;
    release.assets[4].routes = {makeRoute()};
    return std::make_shared<const LoadedRelease>(
        std::make_shared<const OpenMapRelease>(std::move(release)), TextLocale("en_CA"));
}

class Workspace : public testing::Test {
  protected:
    [[nodiscard]] std::string shown() const {
        std::string ids;
        for (const AssetIndex index : m_workspace.filtered()) {
            ids += (ids.empty() ? "" : " ") + m_workspace.release().assets[index].id;
        }
        return ids;
    }
    [[nodiscard]] CameraPosition framed(std::size_t index) const {
        return framing(m_workspace.release().assets[index]);
    }
    void pick(const char* id) { m_workspace.setSelection(QString::fromLatin1(id)); }

    QTemporaryDir m_folder;
    Preferences m_preferences{m_folder.filePath(QStringLiteral("preferences"))};
    SheetStack m_sheets;
    OpenMapWorkspace m_workspace{loaded(), m_preferences, m_sheets};
};

using Sheet = SheetStack::Sheet;
const CameraPosition overview = CoordinateRegion{{54, -112}, 20, 40};
const QString none;

TEST_F(Workspace, StartsWithEverythingShownAndNothingPicked) {
    EXPECT_EQ(m_workspace.query(), none);
    EXPECT_EQ(m_workspace.kind(), QStringLiteral("all"));
    EXPECT_EQ(m_workspace.selection(), none);
    EXPECT_EQ(m_workspace.inspector(), none);
    EXPECT_EQ(m_workspace.pendingInspector(), none);
    EXPECT_FALSE(m_workspace.showingSources());
    EXPECT_FALSE(m_workspace.showingRecords());
    EXPECT_EQ(m_workspace.basemap(), QStringLiteral("standard"));
    EXPECT_EQ(m_workspace.camera(), overview);
}

TEST_F(Workspace, ShowsRecordsByNameWithNumbersByValueAndNamesakesInFileOrder) {
    EXPECT_EQ(shown(), "line two ten twin-b twin-a");
}

TEST_F(Workspace, TheInspectedRecordSaysWhatItWasFoundBy) {
    pick("ten");
    EXPECT_EQ(m_workspace.inspected().found, std::nullopt);
    m_workspace.setQuery(QStringLiteral("PRAIRIE"));
    EXPECT_EQ(m_workspace.inspected().found,
              (SearchedText{SearchedText::Field::company, 0, "Prairie Gas"}));
    m_workspace.setQuery(QStringLiteral("alder"));
    EXPECT_EQ(m_workspace.inspected().found, std::nullopt);
}

TEST_F(Workspace, OffersEachKindOnceInCodePointOrder) {
    EXPECT_EQ(m_workspace.kinds(),
              (QList<QString>{QStringLiteral("Zinc"),
                              QStringLiteral("gas_plant"),
                              QStringLiteral("pipeline"),
                              QStringLiteral("refinery")}));
}

TEST_F(Workspace, PickingARecordFramesItAndOpensTheInspector) {
    pick("ten");
    EXPECT_EQ(m_workspace.camera(), (CameraPosition{CoordinateRegion{{53.5, -100}, 0.4, 0.6}}));
    EXPECT_EQ(m_workspace.inspector(), QStringLiteral("ten"));
    pick("line");
    EXPECT_EQ(m_workspace.camera(), framed(4));
    EXPECT_EQ(m_workspace.inspector(), QStringLiteral("line"));
}

TEST_F(Workspace, AnIdThatNoRecordHasChangesNothingElse) {
    pick("TEN");
    EXPECT_EQ(m_workspace.selection(), QStringLiteral("TEN"));
    EXPECT_EQ(m_workspace.camera(), overview);
    EXPECT_EQ(m_workspace.inspector(), none);
}

TEST_F(Workspace, PickingTheSameRecordAgainIsNoChange) {
    pick("ten");
    m_workspace.resetCamera();
    pick("ten");
    EXPECT_EQ(m_workspace.camera(), overview);
}

TEST_F(Workspace, EmptyingTheSelectionLeavesTheInspectorToItsDismissal) {
    pick("ten");
    m_workspace.setSelection(none);
    EXPECT_EQ(m_workspace.inspector(), QStringLiteral("ten"));
    EXPECT_EQ(m_workspace.camera(), framed(0));
}

TEST_F(Workspace, DismissingTheInspectorEmptiesTheSelectionSoThatTheSameRecordReopensIt) {
    pick("ten");
    m_sheets.setClosed(Sheet::Inspector);
    EXPECT_EQ(m_workspace.selection(), none);
    EXPECT_EQ(m_workspace.inspector(), none);
    m_workspace.resetCamera();
    pick("ten");
    EXPECT_EQ(m_workspace.inspector(), QStringLiteral("ten"));
    EXPECT_EQ(m_workspace.camera(), framed(0));
}

TEST_F(Workspace, ARecordPickedInTheRecordsSheetWaitsUntilTheSheetHasClosed) {
    m_workspace.setShowingRecords(true);
    pick("ten");
    EXPECT_FALSE(m_workspace.showingRecords());
    EXPECT_EQ(m_workspace.pendingInspector(), QStringLiteral("ten"));
    EXPECT_EQ(m_workspace.inspector(), none);
    m_sheets.setClosed(Sheet::Records);
    EXPECT_EQ(m_workspace.pendingInspector(), none);
    EXPECT_EQ(m_workspace.inspector(), QStringLiteral("ten"));
}

TEST_F(Workspace, TheMapFramesTheRecordBeforeTheRecordsSheetClosesOrTheInspectorOpens) {
    QStringList order;
    const auto note = [&](const char* what) {
        return [&order, what] { order.append(QString::fromLatin1(what)); };
    };
    m_workspace.setShowingRecords(true);
    QObject::connect(&m_workspace, &OpenMapWorkspace::cameraChanged, note("camera"));
    QObject::connect(&m_sheets, &SheetStack::requestedChanged, [&](Sheet sheet) {
        if (sheet == Sheet::Records) {
            order.append(QStringLiteral("sheet"));
        }
    });
    QObject::connect(&m_workspace, &OpenMapWorkspace::inspectorChanged, note("inspector"));
    pick("ten");
    m_sheets.setClosed(Sheet::Records);
    EXPECT_EQ(order.join(u' '), QStringLiteral("camera sheet inspector"));
}

TEST_F(Workspace, ClosingTheRecordsSheetWithoutAPickOpensNothing) {
    m_workspace.setShowingRecords(true);
    m_sheets.setClosed(Sheet::Records);
    EXPECT_FALSE(m_workspace.showingRecords());
    EXPECT_EQ(m_workspace.inspector(), none);
}

TEST_F(Workspace, OneSheetIsGoneBeforeTheNextHasItsTurn) {
    EXPECT_EQ(m_sheets.current(), Sheet::NoSheet);
    m_workspace.setShowingRecords(true);
    EXPECT_EQ(m_sheets.current(), Sheet::Records);
    pick("two");
    m_workspace.setShowingSources(true);
    EXPECT_EQ(m_sheets.current(), Sheet::Records);
    m_sheets.setClosed(Sheet::Records);
    EXPECT_EQ(m_sheets.current(), Sheet::Sources);
    EXPECT_EQ(m_workspace.inspector(), QStringLiteral("two"));
    m_workspace.setShowingSources(false);
    EXPECT_EQ(m_sheets.current(), Sheet::Sources);
    m_sheets.setClosed(Sheet::Sources);
    EXPECT_EQ(m_sheets.current(), Sheet::Inspector);
    m_sheets.setClosed(Sheet::Inspector);
    EXPECT_EQ(m_sheets.current(), Sheet::NoSheet);
    EXPECT_EQ(m_workspace.selection(), none);
}

TEST_F(Workspace, TheRecordOfTheInspectorStaysWhileThatLeaves) {
    EXPECT_EQ(m_workspace.inspected(), m_workspace.whole());
    EXPECT_EQ(m_workspace.inspected().asset, std::nullopt);
    EXPECT_EQ(m_workspace.whole().release.get(), &m_workspace.release());
    pick("two");
    m_sheets.dismiss(Sheet::Inspector);
    EXPECT_EQ(m_workspace.inspector(), none);
    EXPECT_EQ(m_workspace.selection(), QStringLiteral("two"));
    EXPECT_EQ(m_workspace.inspected().inspector().name, QStringLiteral("plant 2"));
}

TEST_F(Workspace, SheetsLeaveTheQueryAndTheKindAlone) {
    m_workspace.setQuery(QStringLiteral("twin"));
    m_workspace.setKind(QStringLiteral("refinery"));
    m_workspace.setShowingRecords(true);
    pick("twin-a");
    m_sheets.setClosed(Sheet::Records);
    m_workspace.setShowingSources(true);
    m_workspace.setShowingSources(false);
    m_sheets.setClosed(Sheet::Inspector);
    EXPECT_EQ(m_workspace.query(), QStringLiteral("twin"));
    EXPECT_EQ(m_workspace.kind(), QStringLiteral("refinery"));
    EXPECT_EQ(shown(), "twin-a");
}

TEST_F(Workspace, ResettingTheCameraChangesNothingElse) {
    m_workspace.setQuery(QStringLiteral("plant"));
    pick("ten");
    m_workspace.setCamera(MapRect{1, 2, 3, 4});
    m_workspace.resetCamera();
    EXPECT_EQ(m_workspace.camera(), overview);
    EXPECT_EQ(m_workspace.selection(), QStringLiteral("ten"));
    EXPECT_EQ(m_workspace.inspector(), QStringLiteral("ten"));
    EXPECT_EQ(m_workspace.query(), QStringLiteral("plant"));
}

TEST_F(Workspace, FramingChangesTheCameraOnly) {
    m_workspace.focus(m_workspace.release().assets[4]);
    EXPECT_EQ(m_workspace.camera(), framed(4));
    EXPECT_EQ(m_workspace.selection(), none);
    EXPECT_EQ(m_workspace.inspector(), none);
}

TEST_F(Workspace, ABasemapChosenInOneWindowShowsInEveryOther) {
    SheetStack sheets;
    const OpenMapWorkspace other(loaded(), m_preferences, sheets);
    int changes = 0;
    QObject::connect(&other, &OpenMapWorkspace::basemapChanged, [&] { ++changes; });
    m_workspace.setBasemap(QStringLiteral("satellite"));
    EXPECT_EQ(other.basemap(), QStringLiteral("satellite"));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(m_preferences.text(QStringLiteral("open-map.basemap")), QStringLiteral("satellite"));
}

TEST_F(Workspace, AnUnknownStoredBasemapStaysAsItIs) {
    m_preferences.setText(QStringLiteral("open-map.basemap"), QStringLiteral("Hybrid "));
    SheetStack sheets;
    const OpenMapWorkspace other(loaded(), m_preferences, sheets);
    EXPECT_EQ(other.basemap(), QStringLiteral("Hybrid "));
    EXPECT_EQ(m_preferences.text(QStringLiteral("open-map.basemap")), QStringLiteral("Hybrid "));
}

TEST_F(Workspace, StateIsEachWindowsOwn) {
    SheetStack sheets;
    const OpenMapWorkspace other(loaded(), m_preferences, sheets);
    m_workspace.setQuery(QStringLiteral("twin"));
    pick("ten");
    EXPECT_EQ(other.query(), none);
    EXPECT_EQ(other.selection(), none);
    EXPECT_EQ(other.camera(), overview);
}

TEST_F(Workspace, APickOnTheMapIsToldOfAndSelects) {
    QStringList told;
    QObject::connect(
        &m_workspace, &OpenMapWorkspace::pickedOnMap, [&](const QString& id) { told.append(id); });
    m_workspace.pickOnMap(QStringLiteral("ten"));
    EXPECT_EQ(m_workspace.selection(), QStringLiteral("ten"));
    EXPECT_EQ(m_workspace.inspector(), QStringLiteral("ten"));
    m_workspace.pickOnMap(none);
    EXPECT_EQ(m_workspace.selection(), none);
    EXPECT_EQ(told, QStringList({QStringLiteral("ten"), none}));
    pick("two");
    EXPECT_EQ(told.size(), 2);
}

} // namespace
} // namespace vasker
