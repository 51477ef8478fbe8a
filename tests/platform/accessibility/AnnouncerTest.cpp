#include "platform/accessibility/Announcer.h"

#include <QAccessible>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QQuickWindow>
#include <QTest>

#include <gtest/gtest.h>

namespace vasker {

/// That a tool listens to an event.
struct Listening {
    QString tool;
    QString event;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Listening& each) {
    argument.beginStructure();
    argument << each.tool << each.event;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Listening& each) {
    argument.beginStructure();
    argument >> each.tool >> each.event;
    argument.endStructure();
    return argument;
}

namespace {

const QString registryName = QStringLiteral("org.a11y.atspi.Registry");

// Answers who listens to what.
class Registry : public QDBusVirtualObject {
  public:
    Registry() {
        qDBusRegisterMetaType<Listening>();
        qDBusRegisterMetaType<QList<Listening>>();
        QDBusConnection bus = QDBusConnection::sessionBus();
        bus.registerVirtualObject(QStringLiteral("/org/a11y/atspi/registry"), this);
        bus.registerService(registryName);
    }
    ~Registry() override {
        QDBusConnection::sessionBus().unregisterService(registryName);
        QDBusConnection::sessionBus().unregisterObject(QStringLiteral("/org/a11y/atspi/registry"));
    }
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        ++questions;
        return bus.send(message.createReply(QVariant::fromValue(events)));
    }
    QList<Listening> events;
    int questions = 0;
};

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
// Hears announcements as Qt's bridge does, which puts them on the bus.
class Listener : public QObject {
    Q_OBJECT

  public:
    Listener() {
        listening = this;
        QAccessible::setActive(true);
        QAccessible::installUpdateHandler(hear);
    }
    ~Listener() override {
        QAccessible::installUpdateHandler(nullptr);
        QAccessible::setActive(false);
    }
    QStringList heard;
    bool isPolite = true;
    QAccessibleInterface* source = nullptr;

  private:
    static void hear(QAccessibleEvent* event) {
        if (event->type() == QAccessible::Announcement) {
            const auto* const announcement = static_cast<QAccessibleAnnouncementEvent*>(event);
            listening->heard.append(announcement->message());
            listening->isPolite &=
                announcement->politeness() == QAccessible::AnnouncementPoliteness::Polite;
            listening->source = announcement->accessibleInterface();
        }
    }
    inline static Listener* listening = nullptr;
};
#else
// Hears announcements as a screen reader does.
class Listener : public QObject {
    Q_OBJECT

  public:
    Listener() {
        EXPECT_TRUE(
            QDBusConnection::sessionBus().connect({},
                                                  {},
                                                  QStringLiteral("org.a11y.atspi.Event.Object"),
                                                  QStringLiteral("Announcement"),
                                                  this,
                                                  SLOT(hear(QDBusMessage))));
    }
    QStringList heard;
    bool isPolite = true;
    QAccessibleInterface* source = nullptr;

  public Q_SLOTS:
    void hear(const QDBusMessage& message) {
        const QVariantList arguments = message.arguments();
        heard.append(arguments.value(3).value<QDBusVariant>().variant().toString());
        isPolite &= arguments.value(1).toInt() == 1 && message.signature() == u"siiva{sv}";
        const QString tree = QStringLiteral("/org/a11y/atspi/accessible/");
        source = message.path().startsWith(tree)
                     ? QAccessible::accessibleInterface(message.path().mid(tree.size()).toUInt())
                     : nullptr;
    }
};
#endif

class AnnouncerTest : public testing::Test {
  protected:
    AnnouncerTest() { announcer.setParentItem(window.contentItem()); }
    ~AnnouncerTest() override { QDBusConnection::disconnectFromBus(QStringLiteral("a11y")); }
    static void startBridge() {
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("a11y"));
    }
    void announce(const char* text) { announcer.announce(QString::fromLatin1(text)); }
    bool showsSoon() {
        EXPECT_TRUE(QTest::qWaitFor([&] { return registry.questions > 0; }));
        return QTest::qWaitFor([&] { return announcer.isVisible(); }, 300);
    }

    QQuickWindow window;
    Announcer announcer;
    Registry registry;
    Listener reader;
};

TEST_F(AnnouncerTest, ATextIsAnnouncedPolitelyForItsWindow) {
    startBridge();
    announce("12 records");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !reader.heard.isEmpty(); }));
    EXPECT_EQ(reader.heard, QStringList{QStringLiteral("12 records")});
    EXPECT_TRUE(reader.isPolite);
    EXPECT_EQ(reader.source, QAccessible::queryAccessibleInterface(&window));
}

TEST_F(AnnouncerTest, AnEmptyTextIsNone) {
    startBridge();
    announce("");
    announce("after it");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !reader.heard.isEmpty(); }));
    EXPECT_EQ(reader.heard, QStringList{QStringLiteral("after it")});
}

TEST_F(AnnouncerTest, WhatComesBeforeTheBusWaitsForIt) {
    announce("one");
    announce("two");
    QTest::qWait(100);
    EXPECT_TRUE(reader.heard.isEmpty());
    startBridge();
    ASSERT_TRUE(QTest::qWaitFor([&] { return reader.heard.size() == 2; }));
    EXPECT_EQ(reader.heard, (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
}

TEST_F(AnnouncerTest, AReaderThatKnowsAnnouncementsGetsNoNotification) {
    registry.events = {{QStringLiteral(":1.1"), QStringLiteral("Object:StateChanged:showing")},
                       {QStringLiteral(":1.1"), QStringLiteral("Object:Announcement:")}};
    startBridge();
    announce("12 records");
    EXPECT_FALSE(showsSoon());
    EXPECT_TRUE(announcer.notice().isEmpty());
}

TEST_F(AnnouncerTest, AReaderThatKnowsNoAnnouncementsGetsANotification) {
    registry.events = {{QStringLiteral(":1.1"), QStringLiteral("object:state-changed:showing")}};
    startBridge();
    announce("12 records");
    ASSERT_TRUE(QTest::qWaitFor([&] { return announcer.isVisible(); }));
    EXPECT_EQ(announcer.notice(), QStringLiteral("12 records"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !announcer.isVisible(); }, 6000));
    EXPECT_TRUE(announcer.notice().isEmpty());
}

TEST_F(AnnouncerTest, WhatIsSaidInOneMomentIsOneNotification) {
    registry.events = {{QStringLiteral(":1.1"), QStringLiteral("object:state-changed:showing")}};
    startBridge();
    announce("near Hope, 12 records in view");
    announce("Plant 2, gas plant, here");
    ASSERT_TRUE(QTest::qWaitFor([&] { return announcer.isVisible(); }));
    EXPECT_EQ(announcer.notice(),
              QStringLiteral("near Hope, 12 records in view. Plant 2, gas plant, here"));
}

TEST_F(AnnouncerTest, WhereNobodyListensNothingShows) {
    registry.events = {{QStringLiteral(":1.1"), QStringLiteral("Object:StateChanged:focused")}};
    startBridge();
    announce("12 records");
    EXPECT_FALSE(showsSoon());
}

TEST_F(AnnouncerTest, WithoutABusAnAnnouncementIsForgotten) {
    announce("12 records");
    QTest::qWait(5500);
    startBridge();
    QTest::qWait(500);
    EXPECT_TRUE(reader.heard.isEmpty());
}

} // namespace
} // namespace vasker

#include "AnnouncerTest.moc"
