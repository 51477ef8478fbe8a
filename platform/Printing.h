#pragma once
// Prints one page by the desktop's portal, which asks the user how: for the program it makes no
// difference which printer there is. Nothing here waits.

#include <QDBusConnection>
#include <QObject>
#include <QPageLayout>
#include <QPointer>
#include <QString>
#include <QWindow>

#include <functional>
#include <memory>

class QIODevice;
class QTemporaryFile;

namespace vasker {

class Printing : public QObject {
    Q_OBJECT

  public:
    /// Writes a PDF for `page` into `file`; returns what went wrong, or nothing. Called on a thread
    /// of its own; owns all that it uses and throws nothing.
    using Write = std::function<QString(QIODevice& file, const QPageLayout& page)>;

    /// Asks the portal on `bus`; one that is not connected is fine: it has no portal.
    explicit Printing(const QDBusConnection& bus, QObject* parent = nullptr)
        : QObject(parent), m_bus(bus) {}

    /// Asks the user above `window` how to print `title`, then has it written and prints it. Says
    /// nothing where they cancel.
    void print(const QString& title, QWindow* window, const Write& write);

  Q_SIGNALS:
    /// The page is being written.
    void started();
    /// How it ended, in one sentence for the user; empty where they cancelled after started().
    void ended(bool printed, const QString& message);

  private:
    struct Job {
        QString title;
        QPointer<QWindow> window;
        uint token = 0; ///< the portal's, of what the user has chosen
    };
    void write(const Job& job, const QPageLayout& page, const Write& write);
    void send(const Job& job, const std::shared_ptr<QTemporaryFile>& file);
    void fail(const QString& fault);

    QDBusConnection m_bus;
};

} // namespace vasker
