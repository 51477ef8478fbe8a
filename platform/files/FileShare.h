#pragma once
// What a user can do with one file of the program: save a copy, show it in the file manager, copy
// it to the clipboard, open it with another program. The desktop's portal does it where there is
// one. The file itself is never changed, and nothing here waits: not for the desktop, not for a
// disk.

#include "platform/files/FileSaving.h"

#include <QDBusConnection>
#include <QObject>
#include <QQuickWindow>
#include <QUrl>
#include <QtQmlIntegration>

class QJSEngine;
class QQmlEngine;

namespace vasker {

class FileShare : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)

  public:
    /// Asks portal and file manager on `bus`; one that is not connected is fine.
    explicit FileShare(const QDBusConnection& bus, QObject* parent = nullptr);
    /// The one object of the process, made on first use.
    static FileShare* create(QQmlEngine*, QJSEngine*);

    /// How the last action ended, in one sentence for the user; empty before the first, while one
    /// is under way, and where there is nothing to say.
    [[nodiscard]] const QString& message() const noexcept { return m_message; }

    /// Lets the user say where, then saves a copy of the file at `path` there.
    Q_INVOKABLE void saveCopy(const QString& path, QQuickWindow* window);
    /// Shows the file at `path` in the file manager, else opens its folder.
    Q_INVOKABLE void showInFolder(const QString& path);
    /// Puts the file at `path` on the clipboard, for file managers to paste; texts get its path.
    Q_INVOKABLE void copyFile(const QString& path);
    /// Lets the user choose a program that then opens the file at `path`.
    Q_INVOKABLE void openWith(const QString& path, QQuickWindow* window);

  Q_SIGNALS:
    void messageChanged();

  private:
    void setMessage(const QString& message);
    void openFolder(const QString& path);

    QDBusConnection m_bus;
    FileSaving m_saving;
    QString m_message;
};

} // namespace vasker
