#include "map/tileservice/NetworkReturn.h"

#include <QNetworkInformation>

namespace vasker {

void NetworkReturn::watch() {
    if (m_isWatching) {
        return;
    }
    m_isWatching = true;
    if (!QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability)) {
        return;
    }
    connect(QNetworkInformation::instance(),
            &QNetworkInformation::reachabilityChanged,
            this,
            [this](QNetworkInformation::Reachability reachability) {
                if (reachability == QNetworkInformation::Reachability::Online) {
                    Q_EMIT returned();
                }
            });
}

} // namespace vasker
