#pragma once
// A web server on the loopback interface that serves what a test tells it to, and remembers what it
// was asked. Lives on a thread with an event loop.

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QPointer>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>

#include <vector>

namespace vasker {

class TileServer {
  public:
    enum class Manner {
        whole,   ///< the answer at once
        held,    ///< the answer when release() is called
        cutOff,  ///< the head announces more than the body has, then the connection ends
        endless, ///< bytes for as long as they are taken
        trickle, ///< the head, then a byte now and then, without end
        silent,  ///< nothing, ever
        garbage, ///< the body alone, no HTTP
    };

    struct Answer {
        int status = 200;
        QByteArray body{};           // named initializers may leave out what has one
        QList<QByteArray> headers{}; ///< "Name: value"
        Manner manner = Manner::whole;
    };

    struct Request {
        QString path;
        QMap<QByteArray, QByteArray> headers; ///< names in lower case
    };

    /// Listens on `port`, or on a free one.
    explicit TileServer(quint16 port = 0);
    ~TileServer();
    TileServer(const TileServer&) = delete;
    TileServer& operator=(const TileServer&) = delete;

    [[nodiscard]] quint16 port() const { return m_port; }
    /// "http://127.0.0.1:port" and `path`.
    [[nodiscard]] QString address(const QString& path) const;

    /// What the path is answered from now on.
    void setAnswer(const QString& path, const Answer& answer);
    /// What all other paths are answered; 404 unless told.
    void setOtherAnswer(const Answer& answer) { m_other = answer; }
    /// Answers the requests that are held, and holds none any more.
    void release();
    /// Gone: no connection stays, none is taken.
    void close();

    [[nodiscard]] const std::vector<Request>& requests() const { return m_requests; }
    [[nodiscard]] qsizetype requestsFor(const QString& path) const;
    /// Asked and neither answered nor given up.
    [[nodiscard]] int open() const { return m_open; }
    /// The most that were open at one time.
    [[nodiscard]] int mostOpen() const { return m_mostOpen; }
    /// Requests whose connection the other side closed before they were answered.
    [[nodiscard]] int givenUp() const { return m_givenUp; }

  private:
    struct Held {
        QPointer<QTcpSocket> socket;
        Answer answer;
    };
    void accept(QTcpSocket* socket);
    void read(QTcpSocket* socket);
    void serve(QTcpSocket* socket, const Answer& answer);
    void finished(QTcpSocket* socket);

    QTcpServer m_server;
    QMap<QString, Answer> m_answers;
    Answer m_other{.status = 404, .body = {}, .headers = {}};
    std::vector<Request> m_requests;
    std::vector<Held> m_held;
    quint16 m_port;
    bool m_isReleased = false;
    int m_open = 0;
    int m_mostOpen = 0;
    int m_givenUp = 0;
};

} // namespace vasker
