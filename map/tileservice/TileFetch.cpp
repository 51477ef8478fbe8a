#include "map/tileservice/TileFetch.h"

#include <QNetworkAccessManager>
#include <QNetworkRequest>

namespace vasker {

void TileFetch::LaterDeleted::operator()(QNetworkReply* reply) const {
    reply->abort();
    reply->deleteLater();
}

TileFetch::TileFetch(QNetworkAccessManager& network,
                     const QNetworkRequest& request,
                     const Limits& limits,
                     std::function<void(const TileResponse&)> finished)
    : m_reply(network.get(request)), m_mostBytes(limits.bytes), m_finished(std::move(finished)) {
    QNetworkReply* const reply = m_reply.get();
    // Where the network's thread waits, since nothing is read before the end; it may wait a little
    // earlier, and too much must be seen to be too much.
    reply->setReadBufferSize(2 * m_mostBytes + 100'000);
    const auto hear = [this] {
        m_silence.start();
        checkLength();
    };
    QObject::connect(reply, &QNetworkReply::metaDataChanged, &m_time, hear);
    QObject::connect(reply, &QNetworkReply::readyRead, &m_time, hear);
    QObject::connect(reply, &QNetworkReply::finished, &m_time, [this] {
        const QNetworkReply::NetworkError error = m_reply->error();
        // Of the errors only those of the content, that is of the status, come with a whole
        // response.
        const bool isOfStatus = error >= QNetworkReply::ContentAccessDenied;
        finish(error == QNetworkReply::NoError || isOfStatus, false);
    });
    QObject::connect(reply, &QNetworkReply::sslErrors, &m_time, [this] { finish(false, false); });
    for (QTimer* timer : {&m_time, &m_silence}) {
        timer->setSingleShot(true);
        QObject::connect(timer, &QTimer::timeout, &m_time, [this] { finish(false, false); });
    }
    m_time.start(limits.time);
    m_silence.start(limits.silentTime);
}

TileFetch::~TileFetch() = default;

void TileFetch::checkLength() {
    const qint64 announced = m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong();
    if (announced > m_mostBytes || m_reply->bytesAvailable() > m_mostBytes) {
        finish(false, true);
    }
}

void TileFetch::finish(bool isWhole, bool isTooLong) {
    const auto finished = std::exchange(m_finished, nullptr);
    if (!finished) {
        return;
    }
    m_time.stop();
    m_silence.stop();
    TileResponse response;
    response.status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    response.isWhole = isWhole;
    response.isTooLong = isTooLong || m_reply->bytesAvailable() > m_mostBytes;
    if (response.isWhole && !response.isTooLong) {
        response.body = m_reply->readAll();
    }
    response.contentType = m_reply->rawHeader("Content-Type");
    response.cacheControl = m_reply->rawHeader("Cache-Control");
    response.expires = m_reply->rawHeader("Expires");
    response.retryAfter = m_reply->rawHeader("Retry-After");
    response.entityTag = m_reply->rawHeader("ETag");
    response.lastModified = m_reply->rawHeader("Last-Modified");
    finished(response);
}

} // namespace vasker
