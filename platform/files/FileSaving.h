#pragma once
// Saves a file where the user chooses: asks, writes it on a thread of its own, and says how that
// ended. Nothing here waits: not for the desktop, not for a disk.

#include <QDBusConnection>
#include <QObject>
#include <QQuickWindow>
#include <QString>
#include <QUrl>

#include <functional>

namespace vasker {

class FileSaving : public QObject {
    Q_OBJECT

  public:
    /// Writes the file at `path`, whole or not at all; returns what went wrong, or nothing. Called
    /// on a thread of its own; owns all that it uses and throws nothing.
    using Write = std::function<QString(const QString& path)>;

    /// Asks the portal on `bus`; one that is not connected is fine.
    explicit FileSaving(const QDBusConnection& bus, QObject* parent = nullptr)
        : QObject(parent), m_bus(bus) {}

    /// Lets the user say where, above `window`, then saves there. Says nothing where they cancel.
    void save(const QString& title, const QString& name, QQuickWindow* window, const Write& write);
    /// Saves at `place`. What is under way when the program ends is finished.
    void saveAt(const QUrl& place, const Write& write);

  Q_SIGNALS:
    /// It is being written.
    void started(const QString& path);
    /// How it ended, in one sentence for the user.
    void ended(bool saved, const QString& message);

  private:
    void fail(const QString& fault);

    QDBusConnection m_bus;
};

} // namespace vasker
