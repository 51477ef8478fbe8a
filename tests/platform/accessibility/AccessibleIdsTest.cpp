#include "platform/accessibility/AccessibleIds.h"

#include <QAccessibleObject>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace vasker {
namespace {

const QString tree = QStringLiteral("/org/a11y/atspi/accessible");
const QString accessible = QStringLiteral("org.a11y.atspi.Accessible");
const QString editableText = QStringLiteral("org.a11y.atspi.EditableText");
const QString byBridge = QStringLiteral("by the bridge");

// Stands where Qt's bridge does, and answers everything alike.
class Bridge : public QDBusVirtualObject {
  public:
    Bridge() { bus.registerVirtualObject(tree, this, QDBusConnection::SubPath); }
    ~Bridge() override {
        bus.unregisterObject(tree);
        QDBusConnection::disconnectFromBus(QStringLiteral("a11y"));
    }
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        return connection.send(message.createReply(byBridge));
    }
    QDBusConnection bus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("a11y"));
};

class Field : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(bool readOnly MEMBER readOnly)

  public:
    [[nodiscard]] const QString& text() const { return m_text; }
    void setText(const QString& text) {
        m_text = text;
        Q_EMIT textChanged();
    }
    bool readOnly = false;

  Q_SIGNALS:
    void textChanged();

  private:
    QString m_text;
};

// What assistive tools know of an object of the test: a field is an editable text, and an object
// with the property "actions" has those.
class Control : public QAccessibleObject, public QAccessibleActionInterface {
  public:
    using QAccessibleObject::QAccessibleObject;
    QAccessibleInterface* parent() const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text) const override { return {}; }
    QAccessible::State state() const override { return {}; }
    QAccessible::Role role() const override {
        return object()->property("modal").isValid()       ? QAccessible::Dialog
               : qobject_cast<Field*>(object()) != nullptr ? QAccessible::EditableText
                                                           : QAccessible::Button;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface && object()->property("actions").isValid()
                   ? static_cast<QAccessibleActionInterface*>(this)
                   : nullptr;
    }
    QStringList actionNames() const override {
        return object()->property("actions").toStringList();
    }
    void doAction(const QString& name) override { object()->setProperty("done", name); }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
    static QAccessibleInterface* make(const QString&, QObject* object) {
        return new Control(object);
    }
};

class AccessibleIdsTest : public testing::Test {
  protected:
    AccessibleIdsTest() { QAccessible::installFactory(Control::make); }
    ~AccessibleIdsTest() override {
        QAccessible::setActive(false);
        QAccessible::removeFactory(Control::make);
    }

    static QString pathOf(QObject& object) {
        auto* control = QAccessible::queryAccessibleInterface(&object);
        return tree + u'/' + QString::number(QAccessible::uniqueId(control));
    }
    // The first value of the answer, whoever gives it.
    [[nodiscard]] QVariant ask(const QString& path,
                               const QString& interface,
                               const QString& method,
                               const QVariantList& arguments = {}) const {
        QDBusMessage question =
            QDBusMessage::createMethodCall(bridge.bus.baseService(), path, interface, method);
        question.setArguments(arguments);
        const QDBusPendingCall call = QDBusConnection::sessionBus().asyncCall(question);
        EXPECT_TRUE(QTest::qWaitFor([&] { return call.isFinished(); }));
        return call.reply().arguments().value(0);
    }
    [[nodiscard]] QVariant askId(const QString& path) const {
        const QVariant answer = ask(path,
                                    QStringLiteral("org.freedesktop.DBus.Properties"),
                                    QStringLiteral("Get"),
                                    {accessible, QStringLiteral("AccessibleId")});
        return answer.canConvert<QDBusVariant>() ? answer.value<QDBusVariant>().variant() : answer;
    }
    void takePlace() {
        QAccessible::setActive(true);
        EXPECT_TRUE(QTest::qWaitFor([&] { return bridge.bus.objectRegisteredAt(tree) == &ids; }));
    }

    Bridge bridge;
    AccessibleIds ids;
};

TEST_F(AccessibleIdsTest, BeforeAToolAsksTheBridgeStays) {
    QTest::qWait(20);
    EXPECT_EQ(bridge.bus.objectRegisteredAt(tree), &bridge);
}

TEST_F(AccessibleIdsTest, AnObjectsNameIsItsIdentifier) {
    takePlace();
    QObject button;
    button.setObjectName(QStringLiteral("open-map-reset"));
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    EXPECT_EQ(askId(pathOf(button)), QStringLiteral("open-map-reset"));
#endif
    const auto attributes = qdbus_cast<QMap<QString, QString>>(
        ask(pathOf(button), accessible, QStringLiteral("GetAttributes")));
    EXPECT_EQ(attributes,
              (QMap<QString, QString>{{QStringLiteral("id"), QStringLiteral("open-map-reset")}}));
}

TEST_F(AccessibleIdsTest, ARowTellsItsPlaceInTheWholeList) {
    takePlace();
    QObject row;
    row.setObjectName(QStringLiteral("open-map-record-1"));
    row.setProperty("positionInSet", 12);
    row.setProperty("setSize", 4830);
    const auto attributes = qdbus_cast<QMap<QString, QString>>(
        ask(pathOf(row), accessible, QStringLiteral("GetAttributes")));
    EXPECT_EQ(attributes,
              (QMap<QString, QString>{{QStringLiteral("id"), QStringLiteral("open-map-record-1")},
                                      {QStringLiteral("posinset"), QStringLiteral("12")},
                                      {QStringLiteral("setsize"), QStringLiteral("4830")}}));
}

TEST_F(AccessibleIdsTest, APlaceOutsideTheListIsNotTold) {
    takePlace();
    for (const auto& [position, size] : {std::pair{0, 5}, {6, 5}, {-1, 5}, {1, 0}}) {
        QObject row;
        row.setProperty("positionInSet", position);
        row.setProperty("setSize", size);
        EXPECT_EQ(ask(pathOf(row), accessible, QStringLiteral("GetAttributes")), byBridge);
    }
}

TEST_F(AccessibleIdsTest, AllElseIsTheBridges) {
    takePlace();
    QObject named;
    named.setObjectName(QStringLiteral("open-map-reset"));
    QObject other;
    other.setObjectName(QStringLiteral("other"));
    EXPECT_EQ(ask(pathOf(named), accessible, QStringLiteral("GetRole")), byBridge);
    EXPECT_EQ(ask(pathOf(named), accessible, QStringLiteral("GetInterfaces")), byBridge);
    EXPECT_EQ(ask(pathOf(named), editableText, QStringLiteral("SetTextContents")), byBridge);
    EXPECT_EQ(askId(pathOf(other)), byBridge);
    for (const auto* tail : {u"/root", u"/null", u"/4000000000", u"/1x", u"/99999999999999", u""}) {
        EXPECT_EQ(askId(tree + QString::fromUtf16(tail)), byBridge);
    }
}

TEST_F(AccessibleIdsTest, WhatIsDisabledCannotBePressed) {
    takePlace();
    QObject button;
    const QString path = pathOf(button);
    const auto press = [&] {
        return ask(path, QStringLiteral("org.a11y.atspi.Action"), QStringLiteral("DoAction"), {0});
    };
    EXPECT_EQ(press(), byBridge);
    button.setProperty("enabled", true);
    EXPECT_EQ(press(), byBridge);
    button.setProperty("enabled", false);
    EXPECT_EQ(press(), QVariant(false));
}

TEST_F(AccessibleIdsTest, AnActionIsToldOnce) {
    takePlace();
    QObject button;
    button.setProperty(
        "actions",
        QStringList{QStringLiteral("Press"), QStringLiteral("SetFocus"), QStringLiteral("Press")});
    const QString path = pathOf(button);
    const QString group = QStringLiteral("org.a11y.atspi.Action");
    const QVariant count = ask(path,
                               QStringLiteral("org.freedesktop.DBus.Properties"),
                               QStringLiteral("Get"),
                               {group, QStringLiteral("NActions")});
    EXPECT_EQ(count.value<QDBusVariant>().variant(), 2);
    EXPECT_EQ(ask(path, group, QStringLiteral("GetName"), {1}), QStringLiteral("SetFocus"));
    EXPECT_EQ(ask(path, group, QStringLiteral("GetName"), {2}), QString());
    EXPECT_EQ(ask(path, group, QStringLiteral("DoAction"), {2}), false);
    EXPECT_FALSE(button.property("done").isValid());
    EXPECT_EQ(ask(path, group, QStringLiteral("DoAction"), {0}), true);
    EXPECT_EQ(button.property("done"), QStringLiteral("Press"));
}

TEST_F(AccessibleIdsTest, ActionsThatStandOnceAreTheBridges) {
    takePlace();
    QObject button;
    button.setProperty("actions", QStringList{QStringLiteral("Press"), QStringLiteral("SetFocus")});
    EXPECT_EQ(ask(pathOf(button),
                  QStringLiteral("org.a11y.atspi.Action"),
                  QStringLiteral("GetName"),
                  {0}),
              byBridge);
}

TEST_F(AccessibleIdsTest, ASheetIsModal) {
    takePlace();
    QObject sheet;
    sheet.setProperty("modal", true);
    const auto states =
        qdbus_cast<QList<unsigned int>>(ask(pathOf(sheet), accessible, QStringLiteral("GetState")));
    // Enabled, modal, sensitive, showing, visible.
    EXPECT_EQ(states,
              (QList<unsigned int>{1U << 8 | 1U << 16 | 1U << 24 | 1U << 25 | 1U << 30, 0}));
    sheet.setProperty("modal", false);
    EXPECT_EQ(ask(pathOf(sheet), accessible, QStringLiteral("GetState")), byBridge);
}

TEST_F(AccessibleIdsTest, AnObjectThatIsGoneIsTheBridgesToo) {
    takePlace();
    auto button = std::make_unique<QObject>();
    button->setObjectName(QStringLiteral("open-map-reset"));
    const QString path = pathOf(*button);
    button.reset();
    EXPECT_EQ(askId(path), byBridge);
}

TEST_F(AccessibleIdsTest, AFieldTakesTexts) {
    takePlace();
    Field field;
    const QString path = pathOf(field);
    int changes = 0;
    QObject::connect(&field, &Field::textChanged, [&] { ++changes; });
    EXPECT_EQ(ask(path, editableText, QStringLiteral("SetTextContents"), {QStringLiteral("gas")}),
              true);
    EXPECT_EQ(field.text(), QStringLiteral("gas"));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(ask(path, editableText, QStringLiteral("InsertText"), {1, QStringLiteral("l_"), 1}),
              true);
    EXPECT_EQ(field.text(), QStringLiteral("glas"));
    EXPECT_EQ(ask(path, editableText, QStringLiteral("DeleteText"), {0, 2}), true);
    EXPECT_EQ(field.text(), QStringLiteral("as"));
    EXPECT_TRUE(ask(path, accessible, QStringLiteral("GetInterfaces"))
                    .toStringList()
                    .contains(editableText));
}

TEST_F(AccessibleIdsTest, AnEditBesideTheTextIsRefused) {
    takePlace();
    Field field;
    field.setText(QStringLiteral("gas"));
    const QString path = pathOf(field);
    for (const QVariantList& place : {QVariantList{4, QStringLiteral("x"), 1},
                                      QVariantList{-1, QStringLiteral("x"), 1},
                                      QVariantList{0}}) {
        EXPECT_EQ(ask(path, editableText, QStringLiteral("InsertText"), place), false);
    }
    for (const QVariantList& range :
         {QVariantList{2, 1}, QVariantList{-1, 1}, QVariantList{0, 4}}) {
        EXPECT_EQ(ask(path, editableText, QStringLiteral("DeleteText"), range), false);
    }
    EXPECT_EQ(ask(path, editableText, QStringLiteral("SetTextContents")), false);
    EXPECT_EQ(field.text(), QStringLiteral("gas"));
}

TEST_F(AccessibleIdsTest, ATextThatIsOnlyForReadingStays) {
    takePlace();
    Field field;
    field.readOnly = true;
    EXPECT_EQ(
        ask(pathOf(field), editableText, QStringLiteral("SetTextContents"), {QStringLiteral("x")}),
        byBridge);
    EXPECT_TRUE(field.text().isEmpty());
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
TEST(AccessibleIds, QtTellsTheNameOfAnItem) {
    const AccessibleIds ids;
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick; Item { Accessible.role: Accessible.ListItem }", {});
    const std::unique_ptr<QObject> row(component.create());
    row->setObjectName(QStringLiteral("open-map-record-1"));
    const auto* const control = QAccessible::queryAccessibleInterface(row.get());
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return control->text(QAccessible::Identifier) == u"open-map-record-1"; }));
    row->setObjectName(QStringLiteral("open-map-record-2"));
    EXPECT_EQ(control->text(QAccessible::Identifier), QStringLiteral("open-map-record-2"));
}
#endif

TEST(AccessibleIds, AtTheirEndTheBridgeIsBack) {
    Bridge bridge;
    {
        const AccessibleIds ids;
        QAccessible::setActive(true);
        ASSERT_TRUE(QTest::qWaitFor([&] { return bridge.bus.objectRegisteredAt(tree) == &ids; }));
    }
    EXPECT_EQ(bridge.bus.objectRegisteredAt(tree), &bridge);
    QAccessible::setActive(false);
}

TEST(AccessibleIds, WithoutABridgeNothingHappens) {
    AccessibleIds ids;
    QAccessible::setActive(true);
    QTest::qWait(20);
    EXPECT_FALSE(
        ids.handleMessage(QDBusMessage::createMethodCall(
                              QStringLiteral("a.b"), tree, accessible, QStringLiteral("GetRole")),
                          QDBusConnection(QStringLiteral("a11y"))));
    QAccessible::setActive(false);
}

} // namespace
} // namespace vasker

#include "AccessibleIdsTest.moc"
