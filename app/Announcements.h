#pragma once
// What a window announces to screen readers: how loading ended, what a search found, what was
// picked on the map, another basemap. All of it is also seen on the screen.

#include "app/OpenMapRoot.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <QtQmlIntegration>

namespace vasker {

class Announcements : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vasker::OpenMapRoot* root READ root WRITE setRoot REQUIRED)

  public:
    explicit Announcements(QObject* parent = nullptr);

    [[nodiscard]] OpenMapRoot* root() const noexcept { return m_root; }
    /// Set once; `root` outlives this object.
    void setRoot(OpenMapRoot* root);

  Q_SIGNALS:
    /// One sentence, to be spoken when there is time.
    void spoken(const QString& text);

  private:
    void tellScreen();
    void follow(const OpenMapWorkspace& workspace);
    void tellResults();
    void tellPicked(const QString& id);
    void tellBasemap();

    OpenMapRoot* m_root = nullptr;
    QTimer m_loading; ///< runs while loading is too quick to be worth a word
    QTimer m_search;  ///< runs while the user is typing
};

} // namespace vasker
