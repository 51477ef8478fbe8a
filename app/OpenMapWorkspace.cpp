#include "app/OpenMapWorkspace.h"

#include "data/text/CaseFolding.h"
#include "map/records/Framing.h"
#include "platform/files/Preferences.h"

#include <QFileInfo>

#include <utility>

namespace vasker {

namespace {

const QString basemapKey = QStringLiteral("open-map.basemap");
const QString defaultBasemap = QStringLiteral("standard");

} // namespace

OpenMapWorkspace::OpenMapWorkspace(std::shared_ptr<const LoadedRelease> loaded,
                                   Preferences& preferences,
                                   SheetStack& sheets,
                                   QString packagedFile,
                                   QString digest,
                                   QObject* parent)
    : QObject(parent), m_loaded(std::move(loaded)), m_preferences(preferences), m_sheets(sheets),
      m_packagedFile(std::move(packagedFile)), m_digest(std::move(digest)), m_filter(m_loaded),
      m_basemap(basemap()) {
    connect(&m_preferences, &Preferences::changed, this, [this] {
        if (std::exchange(m_basemap, basemap()) != m_basemap) {
            Q_EMIT basemapChanged();
        }
    });
    connect(&m_sheets, &SheetStack::requestedChanged, this, [this](Sheet sheet) {
        if (sheet == Sheet::Inspector) {
            Q_EMIT inspectorChanged();
        }
    });
    connect(&m_sheets, &SheetStack::closed, this, &OpenMapWorkspace::afterClosing);
}

void OpenMapWorkspace::setSelection(const QString& selection) {
    if (m_selection == selection) {
        return;
    }
    m_selection = selection;
    Q_EMIT selectionChanged();
    if (const Picked picked = m_loaded->index.find(selection.toStdString())) {
        open(*picked);
    }
}

void OpenMapWorkspace::pickOnMap(const QString& selection) {
    Q_EMIT pickedOnMap(selection);
    setSelection(selection);
}

void OpenMapWorkspace::open(AssetIndex record) {
    focus(release().assets[record]);
    if (showingRecords()) {
        m_pendingInspector = record;
        setShowingRecords(false);
    } else {
        inspect(record);
    }
}

void OpenMapWorkspace::inspect(AssetIndex record) {
    const bool isOther = std::exchange(m_inspected, record) != record;
    if (!m_sheets.isRequested(Sheet::Inspector)) {
        m_sheets.request(Sheet::Inspector);
    } else if (isOther) {
        Q_EMIT inspectorChanged();
    }
}

void OpenMapWorkspace::show(Sheet sheet, bool showing) {
    showing ? m_sheets.request(sheet) : m_sheets.dismiss(sheet);
}

void OpenMapWorkspace::afterClosing(Sheet sheet) {
    if (sheet == Sheet::Records && m_pendingInspector) {
        inspect(*std::exchange(m_pendingInspector, std::nullopt));
    } else if (sheet == Sheet::Inspector) {
        setSelection(QString());
    }
}

QString OpenMapWorkspace::inspector() const {
    return m_sheets.isRequested(Sheet::Inspector) ? idOf(m_inspected) : QString();
}

ReleaseRecord OpenMapWorkspace::inspected() const {
    ReleaseRecord record = whole();
    record.asset = m_inspected;
    if (m_inspected) {
        record.found = m_loaded->index.firstMatch(
            folded(query().toStdString(), m_loaded->index.locale()), *m_inspected);
    }
    return record;
}

ReleaseRecord OpenMapWorkspace::whole() const {
    return {std::shared_ptr<const OpenMapRelease>(m_loaded, &release()), std::nullopt};
}

ReleaseRecord OpenMapWorkspace::recordOf(const QString& id) const {
    ReleaseRecord record = whole();
    record.asset = m_loaded->index.find(id.toStdString());
    return record;
}

QString OpenMapWorkspace::packagedFile() const {
    return QFileInfo::exists(m_packagedFile) ? m_packagedFile : QString();
}

QString OpenMapWorkspace::basemap() const {
    return m_preferences.text(basemapKey).value_or(defaultBasemap);
}

void OpenMapWorkspace::setBasemap(const QString& basemap) {
    m_preferences.setText(basemapKey, basemap);
}

void OpenMapWorkspace::setCamera(const CameraPosition& camera) {
    if (m_camera != camera) {
        m_camera = camera;
        Q_EMIT cameraChanged();
    }
}

void OpenMapWorkspace::focus(const OpenMapRelease::Asset& asset) {
    setCamera(framing(asset));
}

void OpenMapWorkspace::resetCamera() {
    setCamera(canadaOverview);
}

QString OpenMapWorkspace::idOf(Picked record) const {
    return record ? QString::fromStdString(release().assets[*record].id) : QString();
}

} // namespace vasker
