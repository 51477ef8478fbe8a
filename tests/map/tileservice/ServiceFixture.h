#pragma once
// A tile service beside a web server of the test's own, and a note of what the service says.

#include "map/tileservice/TileService.h"
#include "tests/support/TileServer.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>
#include <vector>

namespace vasker {

/// The first bytes of a vector tile and of a photograph, which is all that a service looks at.
inline const QByteArray vectorBytes("\x1a\x05layer");
inline const QByteArray imageryBytes("\xff\xd8\xff photograph");

constexpr ServiceTile vectorTile(int zoom, int column, int row) {
    return {TileContent::vector, {zoom, column, row}};
}
constexpr ServiceTile imageryTile(int zoom, int column, int row) {
    return {TileContent::imagery, {zoom, column, row}};
}
inline QString vectorPath(int zoom, int column, int row) {
    return QStringLiteral("/vector/%1/%2/%3.mvt").arg(zoom).arg(column).arg(row);
}
inline QString imageryPath(int zoom, int column, int row) {
    return QStringLiteral("/imagery/%1/%2/%3.jpeg").arg(zoom).arg(row).arg(column);
}

class ServiceFixture : public testing::Test {
  protected:
    ServiceFixture() {
        options.cacheFolder = folder.filePath(QStringLiteral("cache"));
        options.userAgent = QStringLiteral("vasker-test/1.2");
        options.plainLoopback = PlainLoopback::allowed;
        options.retry = {.first = std::chrono::milliseconds(1),
                         .longest = std::chrono::milliseconds(8),
                         .longestAsked = std::chrono::hours(1)};
    }

    [[nodiscard]] TileSources sources(const TileServer& vector, const TileServer& imagery) const {
        return {.vector = {{.addressTemplate =
                                vector.address(QStringLiteral("/vector/{z}/{x}/{y}.mvt")),
                            .firstZoom = 8,
                            .lastZoom = 14,
                            .attribution = {},
                            .attributionAddress = {}}},
                .imagery = {{.addressTemplate =
                                 imagery.address(QStringLiteral("/imagery/{z}/{y}/{x}.jpeg")),
                             .firstZoom = 0,
                             .lastZoom = 12,
                             .attribution = {},
                             .attributionAddress = {}}}};
    }

    TileService& service() {
        if (!m_service) {
            restart();
        }
        return *m_service;
    }
    /// A new service object, as after the program was started again.
    void restart() {
        m_service = std::make_unique<TileService>(sources(server, server), options);
        listen();
    }
    void restart(const TileSources& others) {
        m_service = std::make_unique<TileService>(others, options);
        listen();
    }
    void stop() { m_service.reset(); }

    [[nodiscard]] bool hasArrived(const ServiceTile& tile) const {
        return std::ranges::count(arrived, tile, &Arrival::first) > 0;
    }

    using Arrival = std::pair<ServiceTile, QByteArray>;
    QTemporaryDir folder;
    TileServer server;
    TileService::Options options;
    std::vector<Arrival> arrived;
    std::vector<ServiceTile> missing;

  private:
    void listen() {
        arrived.clear();
        missing.clear();
        QObject::connect(m_service.get(),
                         &TileService::arrived,
                         m_service.get(),
                         [this](const ServiceTile& tile, const QByteArray& bytes) {
                             arrived.emplace_back(tile, bytes);
                         });
        QObject::connect(m_service.get(),
                         &TileService::missing,
                         m_service.get(),
                         [this](const ServiceTile& tile) { missing.push_back(tile); });
    }

    std::unique_ptr<TileService> m_service;
};

/// Whether it becomes true while the event loop runs; within `most` at any rate.
template <typename Condition>
[[nodiscard]] bool comesTrue(Condition condition,
                             std::chrono::milliseconds most = std::chrono::seconds(20)) {
    const QDeadlineTimer deadline(most);
    QTimer wakeUp;
    wakeUp.start(std::chrono::milliseconds(20)); // nothing else may happen
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

} // namespace vasker
