#include "tests/support/TileServer.h"

#include <QTimer>

#include <algorithm>

namespace vasker {

namespace {

constexpr const char* waiting = "waiting";

QByteArray head(const TileServer::Answer& answer, qsizetype length) {
    QByteArray text = "HTTP/1.1 " + QByteArray::number(answer.status) + " Answer\r\n";
    for (const QByteArray& header : answer.headers) {
        text += header + "\r\n";
    }
    if (length >= 0) {
        text += "Content-Length: " + QByteArray::number(length) + "\r\n";
    }
    return text + "\r\n";
}

} // namespace

TileServer::TileServer(quint16 port) {
    QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
        while (QTcpSocket* const socket = m_server.nextPendingConnection()) {
            accept(socket);
        }
    });
    m_server.listen(QHostAddress::LocalHost, port);
    m_port = m_server.serverPort();
}

TileServer::~TileServer() {
    close();
}

QString TileServer::address(const QString& path) const {
    return QStringLiteral("http://127.0.0.1:%1%2").arg(port()).arg(path);
}

void TileServer::setAnswer(const QString& path, const Answer& answer) {
    m_answers.insert(path, answer);
}

void TileServer::release() {
    m_isReleased = true;
    for (const Held& held : std::exchange(m_held, {})) {
        if (held.socket) {
            serve(held.socket, held.answer);
        }
    }
}

void TileServer::close() {
    m_server.close();
    for (QTcpSocket* const socket : m_server.findChildren<QTcpSocket*>()) {
        socket->disconnect();
        socket->abort();
        delete socket;
    }
    m_open = 0;
}

qsizetype TileServer::requestsFor(const QString& path) const {
    return std::ranges::count(m_requests, path, &Request::path);
}

void TileServer::accept(QTcpSocket* socket) {
    QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { read(socket); });
    QObject::connect(socket, &QTcpSocket::disconnected, socket, [this, socket] {
        if (socket->property(waiting).toBool()) {
            finished(socket);
            ++m_givenUp;
        }
        socket->deleteLater();
    });
}

void TileServer::read(QTcpSocket* socket) {
    constexpr const char* end = "\r\n\r\n";
    if (!socket->peek(65'536).contains(end)) {
        return;
    }
    Request request;
    request.path = QString::fromLatin1(socket->readLine().split(' ').value(1));
    for (QByteArray line = socket->readLine().trimmed(); !line.isEmpty();
         line = socket->readLine().trimmed()) {
        const qsizetype colon = line.indexOf(':');
        request.headers.insert(line.left(colon).toLower(), line.mid(colon + 1).trimmed());
    }
    m_requests.push_back(request);
    socket->setProperty(waiting, true);
    m_mostOpen = std::max(m_mostOpen, ++m_open);
    const Answer answer = m_answers.value(request.path, m_other);
    if (answer.manner == Manner::held && !m_isReleased) {
        m_held.push_back({socket, answer});
        return;
    }
    serve(socket, answer);
}

void TileServer::finished(QTcpSocket* socket) {
    socket->setProperty(waiting, false);
    --m_open;
}

void TileServer::serve(QTcpSocket* socket, const Answer& answer) {
    switch (answer.manner) {
    case Manner::whole:
    case Manner::held:
        finished(socket);
        socket->write(head(answer, answer.body.size()) + answer.body);
        break;
    case Manner::cutOff:
        finished(socket);
        socket->write(head(answer, answer.body.size() + 100) + answer.body);
        socket->disconnectFromHost();
        break;
    case Manner::endless: {
        socket->write(head(answer, -1) + answer.body);
        const auto more = [socket] {
            if (socket->bytesToWrite() < 100'000) {
                socket->write(QByteArray(100'000, 'x'));
            }
        };
        QObject::connect(socket, &QTcpSocket::bytesWritten, socket, more);
        break;
    }
    case Manner::trickle: {
        socket->write(head(answer, -1) + answer.body);
        auto* const timer = new QTimer(socket);
        QObject::connect(timer, &QTimer::timeout, socket, [socket] { socket->write("x"); });
        timer->start(5);
        break;
    }
    case Manner::silent:
        break;
    case Manner::garbage:
        finished(socket);
        socket->write(answer.body);
        socket->disconnectFromHost();
        break;
    }
}

} // namespace vasker
