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
    QObject::connect(QNetworkInformation::instance(),
                     &QNetworkInformation::reachabilityChanged,
                     &m_context,
                     [this](QNetworkInformation::Reachability reachability) {
                         if (reachability == QNetworkInformation::Reachability::Online && heard) {
                             heard();
                         }
                     });
}

} // namespace vasker
