#pragma once
// What a window lets the user save of what it shows, and how the last such action ended.

#include "app/OpenMapWorkspace.h"
#include "platform/FileSaving.h"

#include <QObject>
#include <QQuickWindow>
#include <QString>
#include <QtQmlIntegration>

namespace vasker {

class SaveCommands : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vasker::OpenMapWorkspace* workspace MEMBER m_workspace REQUIRED)
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)
    Q_PROPERTY(bool failed READ failed NOTIFY messageChanged)

  public:
    explicit SaveCommands(QObject* parent = nullptr);

    /// How the last action ended, or that it is under way, in one sentence for the user; empty
    /// where there is nothing to say.
    [[nodiscard]] const QString& message() const noexcept { return m_message; }
    /// Whether the message tells of a failure.
    [[nodiscard]] bool failed() const noexcept { return m_failed; }
    /// The message has been read.
    Q_INVOKABLE void forget() { tell({}); }

    /// Lets the user say where, above `window`, then saves the records that the list shows now, in
    /// its order.
    Q_INVOKABLE void saveRecords(QQuickWindow* window);

  Q_SIGNALS:
    void messageChanged();

  private:
    void tell(const QString& message, bool failed = false);

    OpenMapWorkspace* m_workspace = nullptr;
    FileSaving m_saving;
    QString m_message;
    bool m_failed = false;
};

} // namespace vasker
