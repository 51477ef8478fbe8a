#include "platform/accessibility/AccessibleActions.h"

#include "platform/accessibility/AccessibilityBus.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QList>
#include <QStringList>

namespace vasker {

/// As GetActions tells of it.
struct AccessibleAction {
    QString name;
    QString description;
    QString keys;
};

QDBusArgument& operator<<(QDBusArgument& argument, const AccessibleAction& action) {
    argument.beginStructure();
    argument << action.name << action.description << action.keys;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, AccessibleAction& action) {
    argument.beginStructure();
    argument >> action.name >> action.description >> action.keys;
    argument.endStructure();
    return argument;
}

namespace {

AccessibleAction describe(QAccessibleActionInterface& actions, const QString& name) {
    return {actions.localizedActionName(name),
            actions.localizedActionDescription(name),
            actions.keyBindingsForAction(name).join(u';')};
}

QVariant listOf(QAccessibleActionInterface& actions, const QStringList& names) {
    [[maybe_unused]] static const bool known = [] {
        qDBusRegisterMetaType<AccessibleAction>();
        qDBusRegisterMetaType<QList<AccessibleAction>>();
        return true;
    }();
    QList<AccessibleAction> list;
    for (const QString& name : names) {
        list.append(describe(actions, name));
    }
    return QVariant::fromValue(list);
}

bool press(QAccessibleActionInterface& actions, const QString& name) {
    if (!name.isEmpty()) {
        actions.doAction(name);
    }
    return !name.isEmpty();
}

} // namespace

QVariant answerOfActions(const QDBusMessage& question, QAccessibleInterface& control) {
    QAccessibleActionInterface* const actions = control.actionInterface();
    if (actions == nullptr) {
        return {};
    }
    QStringList names = actions->actionNames();
    if (names.removeDuplicates() == 0) {
        return {};
    }
    const QString method = question.member();
    if (question.interface() == propertiesInterface && method == u"Get" &&
        question.arguments() == QVariantList{actionInterface, QStringLiteral("NActions")}) {
        return QVariant::fromValue(QDBusVariant(static_cast<int>(names.size())));
    }
    if (question.interface() != actionInterface) {
        return {};
    }
    const QString name = names.value(question.arguments().value(0).toInt());
    if (method == u"GetActions") {
        return listOf(*actions, names);
    }
    if (method == u"GetName") {
        return name;
    }
    if (method == u"GetLocalizedName") {
        return describe(*actions, name).name;
    }
    if (method == u"GetDescription") {
        return describe(*actions, name).description;
    }
    if (method == u"GetKeyBinding") {
        return describe(*actions, name).keys;
    }
    return method == u"DoAction" ? QVariant(press(*actions, name)) : QVariant();
}

} // namespace vasker
