#pragma once
// The names on one map: of places, and of records whose pins stand alone. User-interface
// thread.

#include "map/labels/LabelAtlas.h"
#include "map/labels/LabelPlacement.h"
#include "map/records/MarkerFrame.h"
#include "map/scene/MapNode.h"
#include "map/style/TilePicture.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace vasker {

/// A pin with the name of its record.
struct LabelledPin {
    ScreenPoint tip;
    double scale; ///< of the pin
    QString title;
    AssetIndex asset;
    bool isRequired; ///< its title stands in any case
};

class MapLabels {
  public:
    /// While the map moves few new names are taken in, and no new titles: they would cost frames.
    enum class Pace : std::uint8_t { resting, moving };

    /// Puts the names that find room into `picture`, which has its size, look and density.
    /// `pins` are all that stand on the map; titles are shown where they have one.
    void place(const std::vector<PlaceLabel>& names,
               const std::vector<LabelledPin>& pins,
               const Camera& camera,
               double textScale,
               MapFrame& picture,
               Pace pace = Pace::resting);

    /// Whether names of the last place() wait for the next.
    [[nodiscard]] bool isUnfinished() const noexcept { return m_newNames < 0; }

  private:
    struct Wish {
        Label label;
        std::optional<ScreenPoint> mark; ///< where a ring marks the place
    };

    void addNames(const std::vector<PlaceLabel>& names, const Camera& camera, BasemapTheme look);
    void addTitles(const std::vector<LabelledPin>& pins, BasemapTheme look, Pace pace);
    void add(Wish wish, LabelCandidate candidate);
    void draw(MapFrame& picture);

    LabelPlacement m_layout;
    std::optional<LabelAtlas> m_labels; ///< for the density and the text scale below
    double m_density = 0;
    double m_textScale = 0;
    int m_newNames = 0;         ///< so many more may be taken in
    std::vector<Wish> m_wishes; ///< of this frame, with a candidate each
    std::vector<LabelCandidate> m_candidates;
};

} // namespace vasker
