#pragma once
// Asks the user where to save a file: by the desktop's portal, else by a dialog of the program.
// Nothing here waits.

#include <QDBusConnection>
#include <QFont>
#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QUrl>
#include <QtQmlIntegration>

#include <functional>
#include <memory>

namespace vasker {

class SaveQuestion : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made for each question")
    Q_PROPERTY(QString title MEMBER m_title CONSTANT)
    Q_PROPERTY(QUrl offered READ offered CONSTANT)
    Q_PROPERTY(QQuickWindow* window READ window CONSTANT)

  public:
    /// `unavailable`: there is neither a portal nor a dialog.
    enum class Outcome { chosen, cancelled, unavailable };
    using Answer = std::function<void(Outcome, const QUrl& place)>;

    /// Asks under `title` and offers `name`, above `window`, which may be null: then there is no
    /// dialog. Calls `answer` once, later; never when `owner` is gone by then. A bus that is not
    /// connected is fine: it has no portal.
    static void ask(const QDBusConnection& bus,
                    const QString& title,
                    const QString& name,
                    QQuickWindow* window,
                    QObject* owner,
                    Answer answer);

    /// Where the dialog begins: the name in the user's documents.
    [[nodiscard]] QUrl offered() const;
    [[nodiscard]] QQuickWindow* window() const { return m_window; }
    /// Whether a file at `place` would take the place of another.
    [[nodiscard]] Q_INVOKABLE bool isTaken(const QUrl& place) const;
    Q_INVOKABLE void choose(const QUrl& place) { finish(Outcome::chosen, fileAt(place)); }
    /// `place` as the address of a file: of a name that was typed Qt's dialog gives the bare path.
    [[nodiscard]] static QUrl fileAt(const QUrl& place);
    /// Gives the dialog, which is open now, what it lacks where it is Qt's own.
    Q_INVOKABLE void completeDialog(const QFont& font) const;
    Q_INVOKABLE void cancel() { finish(Outcome::cancelled, {}); }

  private:
    SaveQuestion(QString title, QString name, QQuickWindow* window, QObject* owner, Answer answer);
    void askByPortal(const QDBusConnection& bus);
    void askByDialog();
    void finish(Outcome outcome, const QUrl& place);

    QString m_title;
    QString m_name;
    QPointer<QQuickWindow> m_window;
    QPointer<QQuickItem> m_focus; ///< has the focus before the dialog, and after it
    Answer m_answer;
    std::unique_ptr<QObject> m_dialog; ///< goes before the question that it shows
};

} // namespace vasker
