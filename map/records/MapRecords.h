#pragma once
// The records as one map shows them: which are drawn, in which colours, as what; and which of them
// is under the pointer. User-interface thread.

#include "map/labels/MapLabels.h"
#include "map/records/HitTest.h"
#include "map/records/MarkerFrame.h"
#include "map/records/RecordSet.h"
#include "map/scene/MapNode.h"

#include <QString>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace vasker {

class MapRecords {
  public:
    void setRecords(const RecordSet& records);
    void setLook(BasemapTheme look);
    /// An id that no record has, or none that is shown, selects or lifts nothing.
    void setSelection(const QString& id);
    void setHovered(const QString& id);

    [[nodiscard]] const RecordSet& records() const noexcept { return m_records; }
    [[nodiscard]] const OpenMapRelease::Asset& asset(AssetIndex index) const;
    [[nodiscard]] QString idOf(std::optional<AssetIndex> index) const;

    /// Grows whenever ink() would give something else.
    [[nodiscard]] std::uint64_t revision() const noexcept { return m_revision; }
    /// The routes and dots for pictures of `scale` logical pixels per map point; null while no
    /// records are set.
    [[nodiscard]] std::shared_ptr<const RecordOverlay> ink(double scale, double devicePixels) const;

    /// Puts marks and lines into `picture`, which has its density. With Dots::painted, routes and
    /// dots stand in the pictures that were painted with `shown`, which came from ink(); null:
    /// there are none yet.
    void place(const Camera& camera, Dots dots, const RecordOverlay* shown, MapFrame& picture);

    /// The pins of the last place(), with the titles of those that stand alone or stand out;
    /// the selected comes first. `untitled` needs no title: it is named in another way.
    [[nodiscard]] std::vector<LabelledPin> labelledPins(std::optional<AssetIndex> untitled) const;
    /// The marks of the last place().
    [[nodiscard]] const MarkerFrame& frame() const noexcept { return m_frame; }

    /// Where the point of a record without routes stands, in the copy of the world nearest to the
    /// camera's centre; nothing for one with routes or out of view.
    [[nodiscard]] std::optional<ScreenPoint> placeOf(AssetIndex record, const Camera& camera) const;

    /// The record within `reach` pixels of `point`, as last placed.
    [[nodiscard]] std::optional<AssetIndex>
    hit(ScreenPoint point, double reach, const Camera& camera) const;
    /// The records that no zoom separates from `asset`, itself included; empty for a route.
    [[nodiscard]] std::vector<AssetIndex> sharingPlaceWith(AssetIndex asset) const;

  private:
    class Ink;

    void refreshTints();
    [[nodiscard]] std::shared_ptr<const MarkerLayout> layout(double scale) const;
    [[nodiscard]] std::optional<AssetIndex> shownRecord(const QString& id) const;
    [[nodiscard]] std::optional<Marker> markerOf(std::optional<AssetIndex> asset) const;
    [[nodiscard]] RouteStrip stripOf(std::optional<AssetIndex> asset, const Camera& camera) const;
    void findLifted();

    RecordSet m_records;
    BasemapTheme m_look = BasemapTheme::light;
    QString m_selection;
    QString m_hovered;
    std::optional<AssetIndex> m_selectedAsset;
    std::optional<AssetIndex> m_hoveredAsset;
    std::uint64_t m_revision = 0;

    std::vector<Rgb> m_tints;      ///< by AssetIndex
    RouteColors m_routeColors;     ///< by AssetIndex; none: not shown
    std::vector<Marker> m_markers; ///< in order of priority
    mutable std::map<DetailLevel, std::shared_ptr<const MarkerLayout>> m_layouts; ///< as needed
    MarkerFrame m_frame;
    std::shared_ptr<const PinAtlas> m_balloons; ///< null: to be made
};

} // namespace vasker
