#include "app/MemoryReturn.h"

#include "map/style/ImagePool.h"
#include "platform/Memory.h"

#include <QEvent>
#include <QGuiApplication>
#include <QQmlEngine>

#include <chrono>

namespace vasker {

namespace {

/// In which the user does nothing.
constexpr std::chrono::milliseconds pause{1500};

/// Less than this is not worth the time.
constexpr std::size_t worthwhileBytes = 16'000'000;

bool isInput(const QEvent& event) {
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::TouchUpdate:
    case QEvent::NativeGesture:
        return true;
    default:
        return false;
    }
}

} // namespace

MemoryReturn::MemoryReturn(QQmlEngine& engine, QObject* parent)
    : QObject(parent), m_engine(engine) {
    m_pause.setSingleShot(true);
    m_pause.setInterval(pause);
    connect(&m_pause, &QTimer::timeout, this, [this] {
        if (freedBytesKept() > worthwhileBytes) {
            giveBack();
        }
    });
    qGuiApp->installEventFilter(this);
}

void MemoryReturn::giveBack() {
    m_engine.collectGarbage();
    emptyImagePool();
    returnFreedMemory();
}

bool MemoryReturn::eventFilter(QObject* watched, QEvent* event) {
    if (isInput(*event)) {
        m_pause.start();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace vasker
