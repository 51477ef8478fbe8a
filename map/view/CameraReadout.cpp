#include "map/view/CameraReadout.h"

#include "map/geometry/ScaleBar.h"
#include "platform/Locale.h"

namespace vasker {

QString distanceText(double metres, const QLocale& locale) {
    return metres < 1000 ? CameraReadout::tr("%1 m").arg(locale.toString(qRound64(metres)))
                         : CameraReadout::tr("%1 km").arg(locale.toString(qRound64(metres / 1000)));
}

CameraReadout::CameraReadout(QObject* parent) : QObject(parent), m_locale(messagesLocale()) {}

void CameraReadout::setMap(MapView* map) {
    m_map = map;
    connect(map, &MapView::viewChanged, this, &CameraReadout::refresh);
    refresh();
}

void CameraReadout::refresh() {
    const Camera camera = m_map->resolvedCamera();
    const ScaleBar bar = scaleBar(camera);
    const ScreenPoint middle = camera.focus();
    const Shown shown{camera.pose().bearing,
                      camera.pose().pitch,
                      camera.zoomed(2, middle).scale() == camera.scale(),
                      camera.zoomed(0.5, middle).scale() == camera.scale(),
                      bar.pixels,
                      distanceText(bar.metres, m_locale)};
    if (shown != m_shown) {
        m_shown = shown;
        Q_EMIT changed();
    }
}

} // namespace vasker
