#include "map/exploration/NearestRecord.h"

#include "map/exploration/PlaceText.h"
#include "map/records/Framing.h"

#include <chrono>

namespace vasker {

namespace {

constexpr std::chrono::milliseconds viewRestTime{250};

} // namespace

NearestRecord::NearestRecord(QObject* parent) : QObject(parent) {
    m_rest.setSingleShot(true);
    m_rest.setInterval(viewRestTime);
    connect(&m_rest, &QTimer::timeout, this, &NearestRecord::refresh);
}

void NearestRecord::setMap(MapView* map) {
    m_map = map;
    const auto restart = [this] { m_rest.start(); };
    connect(map, &MapView::viewChanged, this, restart);
    connect(map, &MapView::recordsChanged, this, restart);
    m_rest.start();
}

void NearestRecord::go() {
    if (m_record) {
        Q_EMIT moved(framing(m_map->records().asset(*m_record)));
    }
}

void NearestRecord::refresh() {
    const Camera camera = m_map->resolvedCamera();
    const RecordSet& records = m_map->records();
    const auto near = isAnyInView(records, camera) ? std::nullopt : nearestRecord(records, camera);
    m_record = near ? std::optional(near->asset) : std::nullopt;
    m_text = near ? PlaceText::nearest(records.asset(near->asset), *near) : QString();
    m_degrees = near ? near->degrees - camera.pose().bearing : 0;
    Q_EMIT changed();
}

} // namespace vasker
