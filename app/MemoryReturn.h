#pragma once
// Gives memory back that the program no longer uses: what the engine of the views would keep until
// it happens to collect, and what the allocator keeps of what was freed. Both take some
// milliseconds, so that it happens when nobody waits: after a window is gone, and once the user
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
