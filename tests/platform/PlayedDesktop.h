#pragma once
// A desktop that a test plays: services on a session bus of the test's own, and what is opened
// without them.

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QDesktopServices>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

namespace vasker {

inline const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
inline const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
inline const QString filesService = QStringLiteral("org.freedesktop.FileManager1");

// One service, on a connection of its own: at one path it keeps what it is asked,
// and answers as it is told.
class Desktop : public QDBusVirtualObject {
  public:
    enum class Answers { done, cancelled, failed, unknownMethod, undecided };

    Desktop(QString service, const QString& path, Answers answers, QVariantMap results = {})
        : m_service(std::move(service)), m_answers(answers), m_results(std::move(results)),
          m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, m_service)) {
        m_bus.registerVirtualObject(path, this);
        m_bus.registerService(m_service);
    }
    ~Desktop() override {
        m_bus.unregisterService(m_service);
        QDBusConnection::disconnectFromBus(m_service);
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        asked = message;
        if (m_answers == Answers::unknownMethod) {
            return false;
        }
        if (message.interface() == filesService) {
            return bus.send(message.createReply());
        }
        const QString token = qdbus_cast<QVariantMap>(message.arguments().constLast())
                                  .value(QStringLiteral("handle_token"))
                                  .toString();
        const QString handle = portalPath + QStringLiteral("/request/") +
                               message.service().mid(1).replace(u'.', u'_') + u'/' + token;
        const QDBusMessage reply =
            message.createReply(QVariant::fromValue(QDBusObjectPath(handle)));
        if (m_answers == Answers::undecided) {
            return bus.send(reply);
        }
        // The answer may overtake the reply.
        QDBusMessage answer = QDBusMessage::createSignal(
            handle, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"));
        answer << static_cast<uint>(m_answers) << m_results;
        bus.send(answer);
        return bus.send(reply);
    }

    /// What it answers from now on.
    void answer(Answers answers) { m_answers = answers; }

    QDBusMessage asked;
    [[nodiscard]] QVariantMap options() const {
        return qdbus_cast<QVariantMap>(asked.arguments().constLast());
    }

  private:
    QString m_service;
    Answers m_answers;
    QVariantMap m_results;
    QDBusConnection m_bus;
};

class Portal : public Desktop {
  public:
    explicit Portal(Answers answers, QVariantMap results = {})
        : Desktop(portalService, portalPath, answers, std::move(results)) {}
};

// The programs that open files and addresses: none, or the one that desktops have.
class Launchers {
  public:
    enum class Present { none, desktop };

    explicit Launchers(Present present) {
        if (present == Present::desktop) {
            QFile launcher(m_folder.filePath(QStringLiteral("xdg-open")));
            launcher.open(QIODevice::WriteOnly);
            launcher.setPermissions(QFileDevice::ReadOwner | QFileDevice::ExeOwner);
        }
        qputenv("PATH", QFile::encodeName(m_folder.path()));
        qunsetenv("BROWSER");
    }
    ~Launchers() {
        qputenv("PATH", m_path);
        qputenv("BROWSER", m_browser);
    }

  private:
    QTemporaryDir m_folder;
    QByteArray m_path = qgetenv("PATH");
    QByteArray m_browser = qgetenv("BROWSER");
};

// What leaves the program without a portal.
class Opened : public QObject {
    Q_OBJECT

  public:
    explicit Opened(Launchers::Present present = Launchers::Present::desktop)
        : m_launchers(present) {
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "keep");
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "keep");
    }
    ~Opened() override {
        QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    }
    QUrl url;

  public Q_SLOTS:
    void keep(const QUrl& opened) { url = opened; }

  private:
    Launchers m_launchers;
};

inline const QDBusConnection& session() {
    static const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus;
}

inline const QDBusConnection& noBus() {
    static const QDBusConnection bus(QStringLiteral("none"));
    return bus;
}

} // namespace vasker
