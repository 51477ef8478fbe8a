#pragma once
// Signals when the network is back, where the desktop reports it. User-interface thread.

#include <QObject>

namespace vasker {

class NetworkReturn : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    /// Begins to listen; does nothing when it does already. Where the desktop does not tell of the
    /// network no signal is ever sent.
    void watch();

  Q_SIGNALS:
    void returned();

  private:
    bool m_isWatching = false;
};

} // namespace vasker
