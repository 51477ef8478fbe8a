#pragma once
// One request for a tile, bounded in size and time. Destroying it cancels it silently.

#include "map/tileservice/TileResponse.h"

#include <QNetworkReply>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>

class QNetworkAccessManager;
class QNetworkRequest;

namespace vasker {

class TileFetch {
  public:
    struct Limits {
        qint64 bytes;
        std::chrono::milliseconds time;
        std::chrono::milliseconds silentTime;
    };
    /// `finished` is called once, later; it must not destroy this object.
    TileFetch(QNetworkAccessManager& network,
              const QNetworkRequest& request,
              const Limits& limits,
              std::function<void(const TileResponse&)> finished);
    ~TileFetch();
    TileFetch(const TileFetch&) = delete;
    TileFetch& operator=(const TileFetch&) = delete;

  private:
    void checkLength();
    void finish(bool isWhole, bool isTooLong);

    struct LaterDeleted {
        void operator()(QNetworkReply* reply) const;
    };
    // First, and so destroyed last: the timers are the context of its connections.
    std::unique_ptr<QNetworkReply, LaterDeleted> m_reply;
    QTimer m_time;
    QTimer m_silence;
    qint64 m_mostBytes;
    std::function<void(const TileResponse&)> m_finished;
};

} // namespace vasker
