#pragma once
// The names on one map: of places, and of records whose balloons stand alone. User-interface
// thread.

#include "map/labels/LabelLayout.h"
#include "map/labels/LabelPicture.h"
#include "map/records/MarkerFrame.h"
#include "map/scene/MapNode.h"
#include "map/style/TilePicture.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace vasker {

/// A balloon with the name of its record.
struct TitledBalloon {
    ScreenPoint tip;
    double scale; ///< of the balloon
    QString title;
    AssetIndex asset;
    bool isRequired; ///< its title stands in any case
};

class MapNames {
  public:
    /// While the map moves few new names are taken in, and no new titles: they would cost frames.
    enum class Pace : std::uint8_t { resting, moving };

    /// Puts the names that find room into `picture`, which has its size, look and density.
    /// `balloons` are all that stand on the map; titles are shown where they have one.
    void place(const std::vector<PlaceName>& names,
               const std::vector<TitledBalloon>& balloons,
               const Camera& camera,
               double textScale,
               MapPicture& picture,
               Pace pace = Pace::resting);

    /// Whether names of the last place() wait for the next.
    [[nodiscard]] bool isUnfinished() const noexcept { return m_newNames < 0; }

  private:
    struct Wish {
        Label label;
        std::optional<ScreenPoint> mark; ///< where a ring marks the place
    };

    void addNames(const std::vector<PlaceName>& names, const Camera& camera, BasemapLook look);
    void addTitles(const std::vector<TitledBalloon>& balloons, BasemapLook look, Pace pace);
    void add(Wish wish, LabelCandidate candidate);
    void draw(MapPicture& picture);

    LabelLayout m_layout;
    std::optional<LabelPicture> m_labels; ///< for the density and the text scale below
    double m_density = 0;
    double m_textScale = 0;
    int m_newNames = 0;         ///< so many more may be taken in
    std::vector<Wish> m_wishes; ///< of this frame, with a candidate each
    std::vector<LabelCandidate> m_candidates;
};

} // namespace vasker
