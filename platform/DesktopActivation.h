#pragma once
// One running program for all of its windows: whoever is started second asks the first, over the
// session bus, to open another window. Launchers that know D-Bus activation ask in the same way.
//
// The object exported is org.freedesktop.Application: Activate, Open and every action ask for one
// window more.

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <chrono>

namespace vasker {

/// What a launcher hands to the program that it starts, so that the window may come to the front: a
/// token for Wayland, another for X. Empty where there is none.
struct LaunchToken {
    QString activation;
    QString startup;

    /// That of this program. To be asked before there is an application object, which takes it
    /// away.
    [[nodiscard]] static LaunchToken fromEnvironment();
};

class DesktopActivation : public QObject {
    Q_OBJECT

  public:
    /// `first`: we are the one that others ask. `handedOver`: the first has opened a window for us.
    /// `alone`: there is no bus, it refuses, or who owns the name does not answer.
    enum class Outcome { first, handedOver, alone };

    /// `name` is the program's reverse-DNS name, also of its desktop entry. A bus that is not
    /// connected is fine.
    DesktopActivation(const QDBusConnection& bus, const QString& name, QObject* parent = nullptr);
    ~DesktopActivation() override;

    /// Becomes the first, or asks who is it for a window that comes to the front by `token`. Waits
    /// for the answer no longer than `patience`.
    [[nodiscard]] Outcome start(const LaunchToken& token,
                                std::chrono::milliseconds patience = std::chrono::seconds(5));
    /// Becomes the first; false where another is, or the bus refuses. Enough for a program that the
    /// bus has started: the request for a window waits there.
    [[nodiscard]] bool claim();
    /// Is the first no longer: what others ask from here on goes to whoever comes next.
    void withdraw();

  Q_SIGNALS:
    /// Another window is requested. The caller waits until this has been dealt with.
    void windowRequested(const vasker::LaunchToken& token);

  private:
    [[nodiscard]] bool ask(const LaunchToken& token, std::chrono::milliseconds patience);

    QDBusConnection m_bus;
    QString m_name;
    QString m_path;
    bool m_claimed = false;
};

/// The interface as the bus sees it.
class ApplicationInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

  public:
    explicit ApplicationInterface(DesktopActivation* activation);

  public Q_SLOTS:
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& action,
                        const QVariantList& parameter,
                        const QVariantMap& platformData);

  private:
    DesktopActivation* m_activation;
};

} // namespace vasker
