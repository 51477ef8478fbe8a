#pragma once
// The keys of a window that work whatever is open in it: F1, Ctrl+?, F10, F11, Ctrl+N,
// Ctrl+W and Ctrl+Q. A menu keeps shortcuts from all that lies below it; these are heard by the
// window itself, and close the menu first, which gives the keyboard back.
//
// It also lets shortcuts through where a text has the keyboard that can only be read: Qt 6.4 would
// take every key for the text's own.

#include <QObject>
#include <QQuickWindow>
#include <QtQmlIntegration>

class QKeyEvent;

namespace vasker {

class WindowKeys : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow* window READ window WRITE setWindow REQUIRED)

  public:
    using QObject::QObject;

    [[nodiscard]] QQuickWindow* window() const noexcept { return m_window; }
    /// Set once; `window` outlives this object.
    void setWindow(QQuickWindow* window);

  Q_SIGNALS:
    /// Each once for a press, however long the key is held. The first three are not sent while a
    /// dialog of the toolkit is open: nothing opens above that.
    void helpRequested();
    void shortcutsRequested();
    /// Not sent where the key has closed a menu.
    void menuRequested();
    void fullScreenRequested();
    void newRequested();
    void closeRequested();
    void quitRequested();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// Whether a text that can only be read has the keyboard.
    [[nodiscard]] bool readsAText() const;
    /// Whether the key is one of them.
    bool handle(const QKeyEvent& key);
    /// The menu or dialog over the window that has the keyboard, or null.
    [[nodiscard]] QObject* popup() const;

    QQuickWindow* m_window = nullptr;
};

} // namespace vasker
