#include "app/OpenMapWorkspace.h"

#include "map/records/Framing.h"
#include "platform/Preferences.h"

#include <utility>

namespace vasker {

namespace {

const QString allKinds = QStringLiteral("all");
const QString basemapKey = QStringLiteral("open-map.basemap");
const QString defaultBasemap = QStringLiteral("standard");

} // namespace

OpenMapWorkspace::OpenMapWorkspace(std::shared_ptr<const LoadedRelease> loaded,
                                   Preferences& preferences,
                                   QString packagedFile,
                                   QObject* parent)
    : QObject(parent), m_loaded(std::move(loaded)), m_preferences(preferences),
      m_packagedFile(std::move(packagedFile)), m_kind(allKinds) {
    m_basemap = basemap();
    connect(&m_preferences, &Preferences::changed, this, [this] {
        if (std::exchange(m_basemap, basemap()) != m_basemap) {
            Q_EMIT basemapChanged();
        }
    });
    filter();
}

void OpenMapWorkspace::setQuery(const QString& query) {
    if (m_query != query) {
        m_query = query;
        Q_EMIT queryChanged();
        filter();
    }
}

void OpenMapWorkspace::setKind(const QString& kind) {
    if (m_kind != kind) {
        m_kind = kind;
        Q_EMIT kindChanged();
        filter();
    }
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

void OpenMapWorkspace::open(AssetIndex record) {
    focus(release().assets[record]);
    if (m_showingRecords) {
        m_pendingInspector = record;
        setShowingRecords(false);
    } else {
        setInspector(record);
    }
}

void OpenMapWorkspace::setInspector(Picked record) {
    if (m_inspector != record) {
        m_inspector = record;
        if (record) {
            m_inspected = record;
        }
        Q_EMIT inspectorChanged();
        present();
    }
}

void OpenMapWorkspace::setShowingSources(bool showing) {
    if (m_showingSources != showing) {
        m_showingSources = showing;
        Q_EMIT showingSourcesChanged();
        present();
    }
}

void OpenMapWorkspace::setShowingRecords(bool showing) {
    if (m_showingRecords != showing) {
        m_showingRecords = showing;
        Q_EMIT showingRecordsChanged();
        present();
    }
}

void OpenMapWorkspace::present() {
    if (m_sheet != Sheet::NoSheet) {
        return;
    }
    m_sheet = m_showingSources   ? Sheet::Sources
              : m_showingRecords ? Sheet::Records
              : m_inspector      ? Sheet::Inspector
                                 : Sheet::NoSheet;
    if (m_sheet != Sheet::NoSheet) {
        Q_EMIT sheetChanged();
    }
}

void OpenMapWorkspace::yield(Sheet sheet) {
    if (m_sheet == sheet) {
        m_sheet = Sheet::NoSheet;
        Q_EMIT sheetChanged();
        present();
    }
}

ReleaseRecord OpenMapWorkspace::inspected() const {
    ReleaseRecord record = whole();
    record.asset = m_inspected;
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

QList<QString> OpenMapWorkspace::kinds() const {
    QList<QString> kinds;
    for (const std::string& kind : m_loaded->index.kinds()) {
        kinds.append(QString::fromStdString(kind));
    }
    return kinds;
}

QList<int> OpenMapWorkspace::counts() const {
    QList<int> counts;
    for (const std::size_t count : m_loaded->index.counts(m_query.toStdString())) {
        counts.append(static_cast<int>(count));
    }
    return counts;
}

void OpenMapWorkspace::focus(const OpenMapRelease::Asset& asset) {
    setCamera(framing(asset));
}

void OpenMapWorkspace::resetCamera() {
    setCamera(canadaOverview);
}

void OpenMapWorkspace::closeInspector() {
    setInspector(std::nullopt);
}

void OpenMapWorkspace::dismissInspector() {
    setInspector(std::nullopt);
    setSelection(QString());
    yield(Sheet::Inspector);
}

void OpenMapWorkspace::dismissRecords() {
    setShowingRecords(false);
    if (m_pendingInspector) {
        setInspector(std::exchange(m_pendingInspector, std::nullopt));
    }
    yield(Sheet::Records);
}

void OpenMapWorkspace::dismissSources() {
    setShowingSources(false);
    yield(Sheet::Sources);
}

void OpenMapWorkspace::filter() {
    std::vector<AssetIndex> filtered =
        m_loaded->index.filtered(m_query.toStdString(), m_kind.toStdString());
    if (m_filtered && *m_filtered == filtered) {
        return;
    }
    m_filtered = std::make_shared<const std::vector<AssetIndex>>(std::move(filtered));
    Q_EMIT recordsChanged();
}

QString OpenMapWorkspace::idOf(Picked record) const {
    return record ? QString::fromStdString(release().assets[*record].id) : QString();
}

} // namespace vasker
