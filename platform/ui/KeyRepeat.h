#pragma once
// Tells the repeats of a held key from presses of it. On X11, Qt 6.4 takes many of them for a
// release and a press, so that a held key would press a button again and again. The two carry the
// same time, unlike those of two presses.

#include <QKeyEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>

namespace vasker {

class KeyRepeat : public QObject {
  public:
    /// Watches the keys of every window of the application. Each release is held back for an
    /// instant: if a press of the same time follows, both are delivered as repeats.
    KeyRepeat();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] bool isRepeated(const QKeyEvent& key) const;
    void holdBack(QObject* window, const QKeyEvent& release);
    void deliverRelease(bool isRepeat);
    /// Returns whether the event was accepted.
    bool deliver(QObject* window, const QKeyEvent& key, bool isRepeat);

    QPointer<QObject> m_window;
    std::unique_ptr<QKeyEvent> m_release; ///< held back; null: none
    const QEvent* m_own = nullptr;        ///< being delivered by itself
    QTimer m_patience;
};

} // namespace vasker
