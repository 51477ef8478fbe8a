#pragma once
// Returns memory that the program no longer uses: objects that the QML engine keeps until its next
// collection, images that are pooled for reuse, and blocks that the allocator keeps after they were
// freed. That takes some milliseconds, so it runs when nothing else happens: after a window is
// closed, and once the user pauses.

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
