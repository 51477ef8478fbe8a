#include "platform/ui/KeyRepeat.h"

#include <QGuiApplication>

#include <chrono>

namespace vasker {

namespace {

/// The display sends release and press together; a busy machine may read them apart.
constexpr std::chrono::milliseconds releasePatience(20);

bool isOfKey(const QEvent& event) {
    return event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease ||
           event.type() == QEvent::ShortcutOverride;
}

} // namespace

KeyRepeat::KeyRepeat() {
    m_patience.setSingleShot(true);
    m_patience.setInterval(releasePatience);
    connect(&m_patience, &QTimer::timeout, this, [this] { deliverRelease(false); });
    qGuiApp->installEventFilter(this);
}

bool KeyRepeat::eventFilter(QObject* watched, QEvent* event) {
    if (!watched->isWindowType() || !isOfKey(*event) || event == m_own) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (isRepeated(key)) {
        if (event->type() == QEvent::ShortcutOverride) {
            event->accept(); // no shortcut is pressed by it; the press follows
        } else {
            deliverRelease(true);
            event->setAccepted(deliver(watched, key, true));
        }
        return true;
    }
    deliverRelease(false);
    if (event->type() != QEvent::KeyRelease || key.isAutoRepeat()) {
        return false;
    }
    holdBack(watched, key);
    return true;
}

bool KeyRepeat::isRepeated(const QKeyEvent& key) const {
    return m_release && key.type() != QEvent::KeyRelease && key.key() == m_release->key() &&
           key.timestamp() == m_release->timestamp();
}

void KeyRepeat::holdBack(QObject* window, const QKeyEvent& release) {
    m_window = window;
    m_release.reset(release.clone());
    m_patience.start();
}

void KeyRepeat::deliverRelease(bool isRepeat) {
    m_patience.stop();
    if (const auto release = std::move(m_release); release && !m_window.isNull()) {
        deliver(m_window, *release, isRepeat);
    }
}

bool KeyRepeat::deliver(QObject* window, const QKeyEvent& key, bool isRepeat) {
    QKeyEvent event(key.type(),
                    key.key(),
                    key.modifiers(),
                    key.nativeScanCode(),
                    key.nativeVirtualKey(),
                    key.nativeModifiers(),
                    key.text(),
                    isRepeat,
                    static_cast<quint16>(key.count()));
    event.setTimestamp(key.timestamp());
    m_own = &event;
    QCoreApplication::sendEvent(window, &event);
    m_own = nullptr;
    return event.isAccepted();
}

} // namespace vasker
