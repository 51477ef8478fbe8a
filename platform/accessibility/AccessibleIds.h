#pragma once
// Gives controls their identifiers on the accessibility bus, and rows their place in a list that
// has only made those in view; tells that a sheet is modal, each action once, and where controls
// are in pixels of the screen; lets assistive tools set texts, and keeps them from pressing what is
// disabled.
//
// Qt's bridge to that bus does none of it, apart from identifiers since Qt 6.8, which it is given
// here. This object takes the bridge's place there, answers what the bridge does not know, and
// hands all else on to it. It relies on the names under which the bridge is found; where it is not
// found so, everything stays as Qt has it.

#include <QAccessible>
#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QPointer>

namespace vasker {

class AccessibleIds : public QDBusVirtualObject, private QAccessible::ActivationObserver {
    Q_OBJECT

  public:
    /// An object's name that begins so is its identifier on the bus.
    static constexpr QLatin1StringView prefix{"open-map-"};

    // An object with the properties "positionInSet", 1 for the first, and "setSize" has them as the
    // attributes "posinset" and "setsize". A dialog whose property "modal" is true is modal.

    /// Takes the bridge's place, now or when assistive tools are first asked for. Made after the
    /// application and gone before it.
    AccessibleIds();
    ~AccessibleIds() override;

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;

  private:
    void accessibilityActiveChanged(bool active) override;
    void takePlace();

    QPointer<QDBusVirtualObject> m_bridge;
};

} // namespace vasker
