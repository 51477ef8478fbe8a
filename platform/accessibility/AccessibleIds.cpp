#include "platform/accessibility/AccessibleIds.h"

#include "platform/accessibility/AccessibilityBus.h"
#include "platform/accessibility/AccessibleActions.h"
#include "platform/accessibility/AccessibleExtents.h"
#include "platform/accessibility/AssistiveTools.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QMap>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QTimer>

namespace vasker {

namespace {

const QString accessible = QStringLiteral("org.a11y.atspi.Accessible");
const QString editableText = QStringLiteral("org.a11y.atspi.EditableText");

using Attributes = QMap<QString, QString>;

// The last part of a path in the tree is the number of what it stands for.
QAccessibleInterface* findControl(const QString& path) {
    bool isNumber = false;
    const QAccessible::Id number = path.mid(controlTree.size() + 1).toUInt(&isNumber);
    auto* control = isNumber ? QAccessible::accessibleInterface(number) : nullptr;
    return control != nullptr && control->isValid() && control->object() != nullptr ? control
                                                                                    : nullptr;
}

QString identifier(const QAccessibleInterface& control) {
    const QString name = control.object()->objectName();
    return name.startsWith(AccessibleIds::prefix) ? name : QString();
}

bool isTextField(const QAccessibleInterface& control) {
    const QVariant readOnly = control.object()->property("readOnly");
    return control.role() == QAccessible::EditableText && readOnly.isValid() && !readOnly.toBool();
}

QStringList interfaces(QAccessibleInterface& field) {
    QStringList names{accessible, QStringLiteral("org.a11y.atspi.Component"), editableText};
    if (field.actionInterface() != nullptr) {
        names << actionInterface;
    }
    if (field.textInterface() != nullptr) {
        names << QStringLiteral("org.a11y.atspi.Text");
    }
    return names;
}

// As what lies behind a sheet is, which a tool may still know from before.
bool isOutOfReach(const QAccessibleInterface& control) {
    const QVariant enabled = control.object()->property("enabled");
    return enabled.isValid() && !enabled.toBool();
}

bool isModal(const QAccessibleInterface& control) {
    return control.role() == QAccessible::Dialog && control.object()->property("modal").toBool();
}

// The numbers of ATSPI_STATE_..., of which a bit each stands in two words.
constexpr unsigned int enabledState = 8;
constexpr unsigned int modalState = 16;
constexpr unsigned int sensitiveState = 24;
constexpr unsigned int showingState = 25;
constexpr unsigned int visibleState = 30;

// A sheet has no others; the bridge knows of none that is modal.
QList<unsigned int> statesOfSheet(const QAccessibleInterface& sheet) {
    const QAccessible::State state = sheet.state();
    unsigned int bits = 1U << modalState;
    if (!state.disabled) {
        bits |= 1U << enabledState | 1U << sensitiveState;
    }
    if (!state.invisible) {
        bits |= 1U << visibleState;
    }
    if (!state.invisible && !state.offscreen) {
        bits |= 1U << showingState;
    }
    return {bits, 0};
}

// The field's own text property takes what it takes from the keyboard, and tells the same of it.
bool setText(const QAccessibleInterface& field, const QString& text) {
    const QAccessible::State state = field.state();
    return !state.disabled && !state.invisible && field.object()->setProperty("text", text);
}

bool edit(const QAccessibleInterface& field, const QString& method, const QVariantList& arguments) {
    QString text = field.object()->property("text").toString();
    if (method == u"SetTextContents" && arguments.size() == 1) {
        return setText(field, arguments[0].toString());
    }
    if (method == u"InsertText" && arguments.size() == 3) {
        const int place = arguments[0].toInt();
        return place >= 0 && place <= text.size() &&
               setText(field,
                       text.insert(place, arguments[1].toString().left(arguments[2].toInt())));
    }
    if (method == u"DeleteText" && arguments.size() == 2) {
        const int first = arguments[0].toInt();
        const int last = arguments[1].toInt();
        return first >= 0 && first <= last && last <= text.size() &&
               setText(field, text.remove(first, last - first));
    }
    return false;
}

// Empty where there is nothing to tell.
Attributes attributesOf(const QAccessibleInterface& control) {
    Attributes attributes;
    if (const QString id = identifier(control); !id.isEmpty()) {
        attributes[QStringLiteral("id")] = id;
    }
    const int position = control.object()->property("positionInSet").toInt();
    const int size = control.object()->property("setSize").toInt();
    if (position > 0 && position <= size) {
        attributes[QStringLiteral("posinset")] = QString::number(position);
        attributes[QStringLiteral("setsize")] = QString::number(size);
    }
    return attributes;
}

// What is to be answered in the bridge's stead; not valid where the bridge answers.
QVariant answer(const QDBusMessage& question, QAccessibleInterface& control) {
    const QString group = question.interface();
    const QString method = question.member();
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    const QString id = identifier(control);
    if (!id.isEmpty() && group == propertiesInterface && method == u"Get" &&
        question.arguments() == QVariantList{accessible, QStringLiteral("AccessibleId")}) {
        return QVariant::fromValue(QDBusVariant(id));
    }
#endif
    if (group == accessible && method == u"GetAttributes") {
        const Attributes attributes = attributesOf(control);
        return attributes.isEmpty() ? QVariant() : QVariant::fromValue(attributes);
    }
    if (group == actionInterface && method == u"DoAction" && isOutOfReach(control)) {
        return false;
    }
    if (group == accessible && method == u"GetState" && isModal(control)) {
        return QVariant::fromValue(statesOfSheet(control));
    }
    if (QVariant actions = answerOfActions(question, control); actions.isValid()) {
        return actions;
    }
    if (!isTextField(control)) {
        return {};
    }
    if (group == accessible && method == u"GetInterfaces") {
        return interfaces(control);
    }
    return group == editableText ? edit(control, method, question.arguments()) : QVariant();
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
// Qt asks for the interface of a control once, by the name of its class and of each base, and has
// one of its own. What that is to tell is set later: here, setting it would make Qt ask again.
QAccessibleInterface* identify(const QString& type, QObject* control) {
    if (type == QLatin1StringView(control->metaObject()->className())) {
        const auto tell = [control] {
            if (control->objectName().startsWith(AccessibleIds::prefix)) {
                QQmlProperty(control, QStringLiteral("Accessible.id"), qmlContext(control))
                    .write(control->objectName());
            }
        };
        QObject::connect(control, &QObject::objectNameChanged, control, tell);
        QMetaObject::invokeMethod(control, tell, Qt::QueuedConnection);
    }
    return nullptr;
}
#endif

} // namespace

AccessibleIds::AccessibleIds() {
    qDBusRegisterMetaType<Attributes>();
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessible::installFactory(identify);
#endif
    QAccessible::installActivationObserver(this);
    if (QAccessible::isActive()) {
        takePlace();
    }
}

AccessibleIds::~AccessibleIds() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessible::removeFactory(identify);
#endif
    QAccessible::removeActivationObserver(this);
    QDBusConnection bus(bridgeConnection);
    if (bus.isConnected() && bus.objectRegisteredAt(controlTree) == this) {
        bus.unregisterObject(controlTree);
        if (m_bridge != nullptr) {
            bus.registerVirtualObject(controlTree, m_bridge, QDBusConnection::SubPath);
        }
    }
}

// The bridge is told of this before it takes its own place.
void AccessibleIds::accessibilityActiveChanged(bool active) {
    if (active) {
        QTimer::singleShot(0, this, [this] { takePlace(); });
    }
}

void AccessibleIds::takePlace() {
    QDBusConnection bus(bridgeConnection);
    auto* found = bus.isConnected()
                      ? qobject_cast<QDBusVirtualObject*>(bus.objectRegisteredAt(controlTree))
                      : nullptr;
    if (found != nullptr && found != this) {
        m_bridge = found;
        bus.unregisterObject(controlTree);
        bus.registerVirtualObject(controlTree, this, QDBusConnection::SubPath);
    }
}

QString AccessibleIds::introspect(const QString& path) const {
    const QDBusVirtualObject* const bridge = m_bridge;
    return bridge != nullptr ? bridge->introspect(path) : QString();
}

bool AccessibleIds::handleMessage(const QDBusMessage& message, const QDBusConnection& bus) {
    QDBusMessage question = message;
    if (QAccessibleInterface* control = findControl(message.path())) {
        AssistiveTools::shared().notice();
        if (const auto extents = answerOfExtents(message, *control)) {
            return bus.send(message.createReply(*extents));
        }
        question = withLogicalPoint(message, *control);
        if (const QVariant known = answer(message, *control); known.isValid()) {
            return bus.send(message.createReply(known));
        }
    }
    QDBusVirtualObject* const bridge = m_bridge;
    return bridge != nullptr && bridge->handleMessage(question, bus);
}

} // namespace vasker
