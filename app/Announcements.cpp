#include "app/Announcements.h"

#include "map/catalogue/RecordListModel.h"
#include "presentation/RecordText.h"

#include <QCoreApplication>

#include <chrono>
#include <utility>

namespace vasker {

namespace {

/// A load that has ended by then is not announced as one.
constexpr std::chrono::milliseconds loadingTime{500};

/// Without a key for so long, a search has settled.
constexpr std::chrono::milliseconds searchTime{700};

/// As the menu names it; empty for a basemap that the menu does not offer.
QString basemapName(const QString& basemap) {
    if (basemap == u"standard") {
        return QCoreApplication::translate("MapOptionsMenu", "Map");
    }
    if (basemap == u"satellite") {
        return QCoreApplication::translate("MapOptionsMenu", "Satellite");
    }
    return basemap == u"hybrid" ? QCoreApplication::translate("MapOptionsMenu", "Hybrid")
                                : QString();
}

} // namespace

Announcements::Announcements(QObject* parent) : QObject(parent) {
    m_loading.setSingleShot(true);
    m_loading.setInterval(loadingTime);
    m_search.setSingleShot(true);
    m_search.setInterval(searchTime);
    connect(&m_loading, &QTimer::timeout, this, [this] {
        Q_EMIT spoken(QCoreApplication::translate("LoadingScreen", "Opening the bundled map…"));
    });
    connect(&m_search, &QTimer::timeout, this, &Announcements::tellResults);
}

void Announcements::setRoot(OpenMapRoot* root) {
    m_root = root;
    connect(root, &OpenMapRoot::screenChanged, this, &Announcements::tellScreen);
    if (root->screen() == OpenMapRoot::Screen::Loading) {
        m_loading.start();
    } else { // once a listener is connected
        QMetaObject::invokeMethod(this, &Announcements::tellScreen, Qt::QueuedConnection);
    }
}

void Announcements::tellScreen() {
    m_loading.stop();
    if (const OpenMapWorkspace* const workspace = m_root->workspace()) {
        follow(*workspace);
        Q_EMIT spoken(tr("The map is open: %n records",
                         nullptr,
                         static_cast<int>(workspace->release().assets.size())));
    } else if (m_root->screen() == OpenMapRoot::Screen::Failed) {
        Q_EMIT spoken(QCoreApplication::translate("FailureScreen", "Map unavailable") +
                      QStringLiteral(". ") + m_root->failureText());
    }
}

void Announcements::follow(const OpenMapWorkspace& workspace) {
    const RecordFilter& filter = workspace.filter();
    const auto restart = [this] { m_search.start(); };
    connect(&filter, &RecordFilter::queryChanged, this, restart);
    connect(&filter, &RecordFilter::kindChanged, this, restart);
    connect(&workspace, &OpenMapWorkspace::pickedOnMap, this, &Announcements::tellPicked);
    connect(&workspace, &OpenMapWorkspace::basemapChanged, this, &Announcements::tellBasemap);
}

void Announcements::tellResults() {
    const RecordFilter& filter = std::as_const(*m_root->workspace()).filter();
    Q_EMIT spoken(filter.filtered().empty() ? RecordListModel::emptyTitle(filter.query())
                                            : RecordListModel::countText(filter.records()));
}

void Announcements::tellPicked(const QString& id) {
    const ReleaseRecord record = m_root->workspace()->recordOf(id);
    if (record.asset) {
        const OpenMapRelease::Asset& asset = record.release->assets[*record.asset];
        Q_EMIT spoken(tr("Picked: %1, %2").arg(nameText(asset.name), categoryText(asset.kind)));
    }
}

void Announcements::tellBasemap() {
    if (const QString name = basemapName(m_root->workspace()->basemap()); !name.isEmpty()) {
        Q_EMIT spoken(tr("Basemap: %1").arg(name));
    }
}

} // namespace vasker
