#include "platform/ui/KeyRepeat.h"

#include <QGuiApplication>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

#include <string>

namespace vasker {
namespace {

class Listener : public QWindow {
  public:
    /// A letter an event: press, release, shortcut; capital: repeated.
    std::string heard;

  protected:
    bool event(QEvent* event) override {
        const char letter = event->type() == QEvent::KeyPress           ? 'p'
                            : event->type() == QEvent::KeyRelease       ? 'r'
                            : event->type() == QEvent::ShortcutOverride ? 's'
                                                                        : ' ';
        if (letter == ' ') {
            return QWindow::event(event);
        }
        const bool isRepeat = static_cast<QKeyEvent*>(event)->isAutoRepeat();
        heard += isRepeat ? static_cast<char>(letter - 'a' + 'A') : letter;
        event->ignore();
        return true;
    }
};

class KeyRepeatTest : public testing::Test {
  protected:
    bool send(QEvent::Type type, ulong time, int key = Qt::Key_Space, bool isRepeat = false) {
        QKeyEvent event(type, key, Qt::NoModifier, QString(), isRepeat);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(&m_window, &event);
        return event.isAccepted();
    }

    KeyRepeat m_keyRepeat;
    Listener m_window;
};

TEST_F(KeyRepeatTest, AReleaseAndAPressOfOneTimeAreRepeats) {
    send(QEvent::KeyPress, 100);
    send(QEvent::KeyRelease, 500);
    send(QEvent::KeyPress, 500);
    send(QEvent::KeyRelease, 540);
    send(QEvent::KeyPress, 540);
    send(QEvent::KeyRelease, 560);
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_window.heard == "pRPRPr"; })) << m_window.heard;
}

TEST_F(KeyRepeatTest, ARepeatPressesNoShortcut) {
    send(QEvent::KeyRelease, 500);
    EXPECT_TRUE(send(QEvent::ShortcutOverride, 500));
    send(QEvent::KeyPress, 500);
    EXPECT_EQ(m_window.heard, "RP");
}

TEST_F(KeyRepeatTest, PressesOfDifferentTimesAreOnesOfTheirOwnAndInOrder) {
    send(QEvent::KeyPress, 100);
    send(QEvent::KeyRelease, 150);
    EXPECT_FALSE(send(QEvent::ShortcutOverride, 151));
    send(QEvent::KeyPress, 151);
    EXPECT_EQ(m_window.heard, "prsp");
}

TEST_F(KeyRepeatTest, AnotherKeyOfTheSameTimeIsNoRepeat) {
    send(QEvent::KeyRelease, 150);
    send(QEvent::KeyPress, 150, Qt::Key_Return);
    EXPECT_EQ(m_window.heard, "rp");
}

TEST_F(KeyRepeatTest, RepeatsThatAreMarkedPassAsTheyAre) {
    send(QEvent::KeyRelease, 150, Qt::Key_Space, true);
    send(QEvent::KeyPress, 150, Qt::Key_Space, true);
    EXPECT_EQ(m_window.heard, "RP");
}

TEST_F(KeyRepeatTest, AWindowMayGoBeforeTheReleaseReachesIt) {
    auto window = std::make_unique<Listener>();
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(window.get(), &release);
    window.reset();
    send(QEvent::KeyPress, 100);
    EXPECT_EQ(m_window.heard, "p");
}

} // namespace
} // namespace vasker
