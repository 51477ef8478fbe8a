#pragma once
// The records of one map: which are drawn, in which colours, as what; and which of them is under
// the pointer. User-interface thread.

#include "map/layers/MapLayer.h"
#include "map/layers/Shape.h"
#include "map/records/HeldStrip.h"
#include "map/records/HitTest.h"
#include "map/records/MarkerFrame.h"
#include "map/records/RecordOverlay.h"
#include "map/records/RecordPins.h"
#include "map/records/RecordSet.h"

#include <QString>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace vasker {

/// The records in one frame.
struct RecordFrame {
    std::vector<MapLayer> linesAndDots; ///< below the pins, in drawing order
    SpriteLayer pins;                   ///< below the labels
    std::vector<ShownPin> shownPins;    ///< the selected and the hovered one first
    std::vector<ScreenRect> dots;       ///< what each dot covers
};

class MapRecords {
  public:
    void setRecords(const RecordSet& records);
    void setTheme(BasemapTheme theme);
    /// An id that no record has, or none that is shown, selects or highlights nothing.
    void setSelection(const QString& id);
    [[nodiscard]] const QString& selection() const noexcept { return m_selection; }
    void setHovered(const QString& id);
    [[nodiscard]] const QString& hovered() const noexcept { return m_hovered; }

    [[nodiscard]] const RecordSet& records() const noexcept { return m_records; }
    /// Empty for no record.
    [[nodiscard]] QString idOf(std::optional<AssetIndex> index) const;

    /// Grows whenever overlay() would return something else.
    [[nodiscard]] std::uint64_t revision() const noexcept { return m_revision; }
    /// Routes and dots for raster tiles of `scale` logical pixels per map point; null while no
    /// records are set.
    [[nodiscard]] std::shared_ptr<const TileOverlay> overlay(double scale, double devicePixels);

    /// The records as `camera` sees them. With RecordDrawing::painted, routes and dots are those of
    /// `painted`, which came from overlay(); where it is null or of another release, no marker is
    /// shown. A pin that would cover one of `names` is a dot.
    [[nodiscard]] RecordFrame compose(const Camera& camera,
                                      RecordDrawing drawing,
                                      const TileOverlay* painted,
                                      double devicePixels,
                                      std::span<const ScreenRect> names = {});

    /// The pins of the last frame, in drawing order, drawn instead of cut out.
    [[nodiscard]] std::vector<Shape> pinShapes() const;

    /// Where the point of a record without routes stands, in the copy of the world nearest to the
    /// camera's centre; nothing for one with routes or out of view.
    [[nodiscard]] std::optional<ScreenPoint> placeOf(AssetIndex record, const Camera& camera) const;
    /// The record within `reach` pixels of `point`, as last composed.
    [[nodiscard]] std::optional<AssetIndex>
    hit(ScreenPoint point, double reach, const Camera& camera) const;
    /// The records that no zoom separates from `asset`, itself included; empty for a route.
    [[nodiscard]] std::vector<AssetIndex> sharingPlaceWith(AssetIndex asset) const;

  private:
    void refreshColors();
    void refreshShown();
    void findHighlighted();
    [[nodiscard]] std::shared_ptr<const MarkerLayout> layout(double scale);
    [[nodiscard]] const MarkerLayout* layoutOf(const TileOverlay* painted) const;
    [[nodiscard]] std::optional<AssetIndex> shownRecord(const QString& id) const;
    [[nodiscard]] std::optional<Marker> markerOf(std::optional<AssetIndex> index) const;
    void placeRoute(LineLayer& layer,
                    HeldStrip& held,
                    std::optional<AssetIndex> index,
                    const Camera& camera) const;
    [[nodiscard]] std::vector<MapLayer> linesAndDots(const Camera& camera, RecordDrawing drawing);

    RecordSet m_records;
    BasemapTheme m_theme = BasemapTheme::light;
    QString m_selection;
    QString m_hovered;
    std::optional<AssetIndex> m_selectedAsset;
    std::optional<AssetIndex> m_hoveredAsset;
    std::uint64_t m_revision = 0;

    std::vector<Rgb> m_colors;     ///< by AssetIndex
    RouteColors m_routeColors;     ///< by AssetIndex; none: not shown
    std::vector<Marker> m_markers; ///< by priority
    std::map<DetailLevel, std::shared_ptr<const MarkerLayout>> m_layouts; ///< as needed
    std::vector<std::weak_ptr<const RecordOverlay>> m_overlays; ///< those that were made and live
    HeldStrip m_selectedStrip;
    HeldStrip m_hoveredStrip;
    MarkerFrame m_markerFrame;      ///< as last composed
    std::optional<PinAtlas> m_pins; ///< none: to be made
};

} // namespace vasker
