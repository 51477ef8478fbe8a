#pragma once
// Tells when the network is back, where the desktop says so. The user interface's thread.

#include <QObject>

#include <functional>

namespace vasker {

class NetworkReturn {
  public:
    /// Called each time that the network has come back.
    std::function<void()> heard;

    /// Begins to listen; does nothing when it does already. Where nobody tells of the network
    /// nothing is ever heard.
    void watch();

  private:
    bool m_isWatching = false;
    QObject m_context; ///< no call outlives this object
};

} // namespace vasker
