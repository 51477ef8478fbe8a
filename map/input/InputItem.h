#pragma once
// An item that receives what its user does as values.

#include "map/input/MapEvent.h"

#include <QPointF>
#include <QQuickItem>

#include <optional>

namespace vasker {

class InputItem : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS

  public:
    explicit InputItem(QQuickItem* parent = nullptr);

  protected:
    /// Whether the event means something; a key that does not goes on to other items.
    virtual bool handle(const MapEvent& event) = 0;
    /// The pointer is at `place`, without a button; nothing: it has left the item.
    virtual void hoverAt(std::optional<QPointF> place) = 0;

    bool event(QEvent* event) override;
    void mouseUngrabEvent() override;
    void hoverMoveEvent(QHoverEvent* event) override;
    void hoverLeaveEvent(QHoverEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

} // namespace vasker
