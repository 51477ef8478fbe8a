#include "map/view/MapHover.h"

#include "map/pins/PinShape.h"
#include "presentation/RecordText.h"

namespace vasker {

void MapHover::setRecord(std::optional<AssetIndex> record,
                         ScreenPoint pointer,
                         const Camera& camera) {
    m_isHeld = false;
    if (record == m_record) {
        return;
    }
    m_record = record;
    const auto marker = record ? m_records.placeOf(*record, camera) : std::nullopt;
    m_place = marker ? QPointF(marker->x, marker->y - pinTipY * hoveredPinScale)
                     : QPointF(pointer.x, pointer.y);
    Q_EMIT changed();
}

void MapHover::hold(AssetIndex record, ScreenPoint point, const Camera& camera) {
    setRecord(record, point, camera);
    m_isHeld = true;
}

void MapHover::clear() {
    m_isHeld = false;
    if (m_record) {
        m_record.reset();
        Q_EMIT changed();
    }
}

QString MapHover::name() const {
    return m_record ? nameText(m_records.records().asset(*m_record).name) : QString();
}

QString MapHover::caption() const {
    return m_record ? categoryLine(m_records.records().asset(*m_record)) : QString();
}

} // namespace vasker
