#include "map/view/CameraReadout.h"

#include "map/geometry/ScaleBar.h"
#include "platform/Locale.h"

namespace vasker {

QString distanceText(double metres, const QLocale& locale) {
    return metres < 1000 ? CameraReadout::tr("%1 m").arg(locale.toString(qRound64(metres)))
                         : CameraReadout::tr("%1 km").arg(locale.toString(qRound64(metres / 1000)));
}

CameraReadout::CameraReadout(QObject* parent) : QObject(parent), m_locale(messagesLocale()) {
    connect(this, &CameraReadout::maximumBarLengthChanged, this, &CameraReadout::refresh);
}

void CameraReadout::setMap(MapView* map) {
    if (map == m_map) {
        return;
    }
    if (m_map != nullptr) {
        m_map->disconnect(this);
    }
    m_map = map;
    if (map != nullptr) {
        connect(map, &MapView::viewChanged, this, &CameraReadout::refresh);
    }
    refresh();
    Q_EMIT mapChanged();
}

void CameraReadout::refresh() {
    Shown shown;
    if (m_map != nullptr) {
        const Camera camera = m_map->resolvedCamera();
        const ScaleBar bar = scaleBar(camera, m_maximumBarLength);
        const ScreenPoint middle = camera.focus();
        shown = {camera.pose().bearing,
                 camera.pose().pitch,
                 camera.zoomed(2, middle).scale() == camera.scale(),
                 camera.zoomed(0.5, middle).scale() == camera.scale(),
                 bar.pixels,
                 distanceText(bar.metres, m_locale)};
    }
    if (shown != m_shown) {
        m_shown = shown;
        Q_EMIT changed();
    }
}

} // namespace vasker
