#pragma once
// The labels of one map: of places, and of records beside their pins. User-interface thread.

#include "map/geometry/Camera.h"
#include "map/labels/LabelAtlas.h"
#include "map/labels/LabelPlacement.h"
#include "map/layers/Shape.h"
#include "map/layers/SpriteLayer.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace vasker {

/// The label of a record beside its pin.
struct RecordLabel {
    std::uint64_t id;       ///< the same in every frame, another for each record
    ScreenRect pin;         ///< labels keep clear of it
    QString text;           ///< empty: the pin has no label
    bool isRequired;        ///< the label stands in any case
    std::uint32_t rank = 0; ///< the smaller comes first
};

/// What the labels of one frame are made from.
struct LabelInput {
    const Camera& camera;
    BasemapTheme theme;
    double devicePixels; ///< per logical pixel
    double textScale;
    std::vector<PlaceLabel> places;
    std::vector<RecordLabel> records;
    std::vector<ScreenRect> dots;      ///< labels of records keep clear of them as well
    std::vector<ScreenRect> obstacles; ///< controls over the map
    /// While the map moves few new labels are drawn, and none of records: they would cost frames.
    bool isMoving;
};

class MapLabels {
  public:
    /// Begins a frame by its places; the records of `input` do not matter yet. Returns what pins
    /// make way for: the obstacles, and the names of regions and cities, from which one tells what
    /// part of the world one sees.
    [[nodiscard]] std::vector<ScreenRect> begin(const LabelInput& input);
    /// The labels of the frame that was begun with `input`, to which its records have come.
    [[nodiscard]] SpriteLayer compose(const LabelInput& input);

    /// The labels of the last frame and the rings of their places, drawn instead of cut out.
    [[nodiscard]] std::vector<Shape> shapes();

    /// Whether labels of the last frame wait for the next one.
    [[nodiscard]] bool isUnfinished() const noexcept { return m_newLabels < 0; }

  private:
    struct Candidate {
        Label label;
        std::optional<ScreenPoint> mark; ///< where a ring marks the place
        bool isProminent = false;
    };

    void addPlaces(const LabelInput& input);
    void addRecords(const LabelInput& input);
    void add(Candidate candidate, LabelCandidate placement);
    /// With its lines aligned towards its point.
    [[nodiscard]] Label labelOf(const PlacedLabel& placed);
    [[nodiscard]] SpriteLayer sprites();

    LabelPlacement m_placement;
    LabelPlacement m_names;            ///< as if there were no pins
    std::optional<LabelAtlas> m_atlas; ///< for the density and the text scale below
    double m_devicePixels = 0;
    double m_textScale = 0;
    int m_newLabels = 0; ///< so many more may be measured in this frame
    std::vector<Candidate> m_candidates;
    std::vector<LabelCandidate> m_placements; ///< one each
};

} // namespace vasker
