#pragma once
// What a window can save of what it shows, and how the last such action ended.

#include "app/OpenMapWorkspace.h"
#include "app/saving/MapPicture.h"
#include "map/view/MapView.h"
#include "platform/Printing.h"
#include "platform/files/FileSaving.h"

#include <QObject>
#include <QQuickWindow>
#include <QString>
#include <QTimer>
#include <QtQmlIntegration>

#include <functional>
#include <memory>

namespace vasker {

class SaveCommands : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vasker::OpenMapWorkspace* workspace MEMBER m_workspace REQUIRED)
    /// A picture is taken of it; its property "captionText" stands below.
    Q_PROPERTY(vasker::MapView* map MEMBER m_map REQUIRED)
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)
    Q_PROPERTY(bool failed READ failed NOTIFY messageChanged)
    Q_PROPERTY(bool underWay READ underWay NOTIFY messageChanged)

  public:
    explicit SaveCommands(QObject* parent = nullptr);

    /// How the last action ended, or that it is under way, in one sentence for the user; empty
    /// where there is nothing to say.
    [[nodiscard]] const QString& message() const noexcept { return m_message; }
    /// Whether the message tells of a failure.
    [[nodiscard]] bool failed() const noexcept { return m_told == Told::failure; }
    /// Whether it tells of what has not ended yet.
    [[nodiscard]] bool underWay() const noexcept { return m_told == Told::progress; }
    /// The message has been read.
    Q_INVOKABLE void forget() { tell({}, Told::success); }

    /// Lets the user say where, above `window`, then saves the records that the list shows now, in
    /// its order.
    Q_INVOKABLE void saveRecords(QQuickWindow* window);

    /// The same for a picture of the map as it is seen now, `scale` times as large as on the
    /// screen.
    Q_INVOKABLE void savePicture(QQuickWindow* window, double scale = 1);
    /// The same for a page: PDF or SVG.
    Q_INVOKABLE void savePage(QQuickWindow* window);
    /// Prints the map as it is seen now; the user says how, above `window`.
    Q_INVOKABLE void print(QQuickWindow* window);
    /// Puts a picture of the map as it is seen now on the clipboard.
    Q_INVOKABLE void copyPicture();

  Q_SIGNALS:
    void messageChanged();

  private:
    enum class Told { success, progress, failure };
    using Use = std::function<void(const MapPicture& picture)>;
    void takePicture(double scale, const Use& use);
    void ask(const QString& title, const QString& suffix, QQuickWindow* window, double scale);
    /// The picture of what is seen now, without the map itself and its attribution.
    [[nodiscard]] MapPicture pictureWithoutMap(double scale) const;
    /// Which records are shown; empty where all are.
    [[nodiscard]] QString shownText() const;
    [[nodiscard]] QString releaseID() const;
    /// The name that a file of what is shown now is offered under.
    [[nodiscard]] QString offeredName(const QString& what, const QString& suffix) const;
    void tell(const QString& message, Told told);

    OpenMapWorkspace* m_workspace = nullptr;
    MapView* m_map = nullptr;
    FileSaving m_saving;
    Printing m_printing;
    QTimer m_slow; ///< runs while a picture is taken and nothing is said of it
    QString m_message;
    Told m_told = Told::success;
};

} // namespace vasker
