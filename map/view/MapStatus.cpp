#include "map/view/MapStatus.h"

#include <QVariantMap>

#include <utility>

namespace vasker {

void MapStatus::setTheme(BasemapTheme theme) {
    if (theme != m_theme) {
        m_theme = theme;
        Q_EMIT themeChanged();
    }
}

void MapStatus::setFrame(const MapFrame& frame) {
    QVariantList attribution;
    for (const Attribution& each : frame.attributions) {
        attribution.append(QVariantMap{{QStringLiteral("text"), each.text},
                                       {QStringLiteral("address"), each.address}});
    }
    if (attribution != m_attribution || frame.lacksImagery != m_lacksImagery ||
        frame.lacksSharperImagery != m_lacksSharperImagery) {
        m_attribution = std::move(attribution);
        m_lacksImagery = frame.lacksImagery;
        m_lacksSharperImagery = frame.lacksSharperImagery;
        Q_EMIT changed();
    }
}

} // namespace vasker
