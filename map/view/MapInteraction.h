#pragma once
// What the user does on a map: moves its camera, hovers over records and picks them.

#include "map/input/MapNavigator.h"
#include "map/records/MapRecords.h"
#include "map/view/MapControls.h"
#include "map/view/MapHover.h"

#include <QObject>
#include <QPointF>
#include <QString>

#include <functional>
#include <optional>

class QQuickItem;

namespace vasker {

class MapInteraction : public QObject {
    Q_OBJECT

  public:
    /// `map` and `records` outlive this object; `camera` returns the present camera of the map.
    MapInteraction(QQuickItem& map, const MapRecords& records, std::function<Camera()> camera);

    [[nodiscard]] MapNavigator& navigator() noexcept { return m_navigator; }
    [[nodiscard]] const MapNavigator& navigator() const noexcept { return m_navigator; }
    [[nodiscard]] MapHover& hover() noexcept { return m_hover; }
    [[nodiscard]] MapControls& controls() noexcept { return m_controls; }

    /// Whether the event means something to the map.
    bool handle(const MapEvent& event);
    /// The pointer is at `place` of the map, without a button; nothing: it has left the map. Below
    /// controls and in covered margins no record is hovered. A pointer that rests takes nothing
    /// from keys.
    void hoverAt(std::optional<QPointF> place);

  Q_SIGNALS:
    /// The user picked a record; empty: the bare map.
    void picked(const QString& id);
    /// The user picked a place where several records stand that no zoom separates.
    void choiceOffered(const vasker::RecordSet& choice, QPointF place);
    /// The user asked what can be done with the record at `place`.
    void menuRequested(const QString& id, QPointF place);

  private:
    [[nodiscard]] std::optional<AssetIndex> recordAt(ScreenPoint point, double reach) const;
    bool pick(const Pick& request);
    void openMenu(ScreenPoint point, double reach);
    void refreshCursor();

    QQuickItem& m_map;
    const MapRecords& m_records;
    std::function<Camera()> m_camera;
    MapNavigator m_navigator;
    MapHover m_hover;
    std::optional<QPointF> m_pointer; ///< where it was last
    MapControls m_controls;
};

} // namespace vasker
