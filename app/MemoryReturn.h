#pragma once
// Returns memory that the program no longer uses: objects that the QML engine keeps until its next
// collection, and blocks that the allocator keeps after they were freed. Both take some
// milliseconds, so they run when nothing else happens: after a window is closed, and once the user
// pauses.

#include <QObject>
#include <QTimer>

class QQmlEngine;

namespace vasker {

class MemoryReturn : public QObject {
    Q_OBJECT

  public:
    /// `engine` outlives the object.
    explicit MemoryReturn(QQmlEngine& engine, QObject* parent = nullptr);

    void giveBack();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QQmlEngine& m_engine;
    QTimer m_pause; ///< runs since the user did something
};

} // namespace vasker
