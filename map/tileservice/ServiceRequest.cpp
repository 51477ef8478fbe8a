#include "map/tileservice/ServiceRequest.h"

namespace vasker {

QNetworkRequest serviceRequest(const QUrl& address,
                               TileContent content,
                               const QString& userAgent,
                               const std::optional<TileCache::Entry>& kept) {
    QNetworkRequest request(address);
    request.setHeader(QNetworkRequest::UserAgentHeader, userAgent);
    // Redirections are not followed: an address is that of a tile, or of none.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    for (const auto attribute : {QNetworkRequest::CookieLoadControlAttribute,
                                 QNetworkRequest::CookieSaveControlAttribute,
                                 QNetworkRequest::AuthenticationReuseAttribute}) {
        request.setAttribute(attribute, QNetworkRequest::Manual);
    }
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, address.scheme() == u"https");
    // Vector tiles are inflated by whoever decodes them, within bounds and on another thread;
    // photographs have nothing to inflate.
    request.setRawHeader("Accept-Encoding", content == TileContent::vector ? "gzip" : "identity");
    if (kept && !kept->entityTag.isEmpty()) {
        request.setRawHeader("If-None-Match", kept->entityTag);
    } else if (kept && !kept->lastModified.isEmpty()) {
        request.setRawHeader("If-Modified-Since", kept->lastModified);
    }
    return request;
}

} // namespace vasker
