#pragma once
// The pictures of the ground that one map shows: which are wanted now, in which order they are
// painted, what stands in for those that are not ready, and how many are kept.
//
// Pictures come in sets: all pictures of a set are painted at one scale, in one look, with the same
// records. While the map is moved the set in view is stretched a little; where that would be too
// much, or something else changed, or the map came to rest at another scale, a new set is begun and
// takes the old one's place as a whole when it covers the view. Under both lies a coarse picture of
// the whole world, so that there is never a hole. User-interface thread.

#include "map/basemap/TileLibrary.h"
#include "map/geometry/TileCover.h"
#include "map/style/TilePicture.h"

#include <QObject>

#include <atomic>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace vasker {

/// A picture that was painted. The image is taken out when it becomes a texture.
struct PaintedTile {
    TileKey key{};
    double devicePixelsPerMapPoint = 1;
    PixelRect pixels{};
    QImage image;
    std::vector<PlaceLabel> names;
    std::vector<TileAttribution> credits;
    bool lacksImagery = false; ///< though the look asks for it
    bool isPrepared = false;   ///< has been among what is shown
};

struct ShownTile {
    std::shared_ptr<PaintedTile> tile;
    double shift; ///< the copy of the world: map points to the east
    /// 1 but for pictures that fade in. With 0 a picture of a set to come is handed out, so that
    /// its texture is made before it is needed, and not in one frame with all others.
    double opacity;
};

/// What a map looks at, and how.
struct BasemapView {
    Camera camera{canadaOverview, {1, 1}};
    double devicePixelsPerPixel = 1;
    BasemapTheme look = BasemapTheme::light;
    MapLanguage language = MapLanguage::english;
    bool isResting = true;         ///< the camera has not moved for a moment
    bool fades = true;             ///< a new look may fade in
    std::uint64_t inkRevision = 0; ///< changes when `ink` would give something else
    /// What is painted on the ground of a new set; `scale` in logical pixels per map point. May be
    /// empty.
    std::function<std::shared_ptr<const RecordOverlay>(double scale)> ink;
};

class TilePyramid : public QObject {
    Q_OBJECT

  public:
    /// `library` outlives the store.
    explicit TilePyramid(TileLibrary& library, QObject* parent = nullptr);
    ~TilePyramid() override;

    /// Looks at `view` from now on. `now` is any steady time.
    void look(const BasemapView& view, std::chrono::nanoseconds now);

    /// What to draw, the lowest first.
    [[nodiscard]] const std::vector<ShownTile>& shown() const noexcept { return m_shown; }
    /// The ink of the set in view; null before there is one.
    [[nodiscard]] std::shared_ptr<const RecordOverlay> shownInk() const;
    /// The scale that the set in view was painted for; 0 before there is one.
    [[nodiscard]] double shownScale() const;
    /// The names in the tiles of the set in view.
    [[nodiscard]] std::vector<PlaceLabel> names() const;
    /// Whom to thank for what is in view, each once.
    [[nodiscard]] std::vector<TileAttribution> credits() const;
    /// Whether imagery is asked for and missing somewhere in view.
    [[nodiscard]] bool lacksImagery() const;
    /// Whether all that the view asks for is shown, as it asks for it.
    [[nodiscard]] bool isComplete() const;
    /// Whether something fades in or is about to take its place: look() again for the next frame.
    [[nodiscard]] bool isChanging() const;

    /// Textures that were made of pictures are lost, and with them the pictures: what became a
    /// texture is to be painted anew.
    void forgetTextures();

  Q_SIGNALS:
    /// Something new is there: look() again.
    void changed();

  private:
    struct Set {
        std::uint64_t number;
        double scale;
        int zoom;
        double devicePixelsPerPixel;
        BasemapTheme look;
        MapLanguage language;
        std::uint64_t inkRevision;
        std::shared_ptr<const RecordOverlay> ink;
        std::map<TileKey, std::shared_ptr<PaintedTile>> painted;
        std::set<TileKey> outdated; ///< painted, but more is known of their ground now
    };
    /// A picture that the workers were asked for.
    struct Request {
        std::shared_ptr<std::atomic<bool>> begun;
        bool outdated = false; ///< something came in after it was begun
    };
    struct Fade {
        std::unique_ptr<Set> old;
        std::optional<std::chrono::nanoseconds> since; ///< none: begins with the next frame
    };

    [[nodiscard]] bool suits(const Set& set) const;
    [[nodiscard]] std::unique_ptr<Set> newSet(double scale) const;
    void begin();
    [[nodiscard]] std::vector<CoverTile> coverOf(const Set& set, double margin) const;
    [[nodiscard]] bool covers(const Set& set) const;
    /// Whether the pictures of the set to come may be seen.
    [[nodiscard]] bool isPrepared(const Set& set) const;
    void promote();
    void request();
    void collect(const Set& set, double margin, std::vector<TileWorkers::Job>& jobs);
    [[nodiscard]] TileWorkers::Job
    job(const Set& set, TileKey key, std::shared_ptr<std::atomic<bool>> begun);
    void takePainted(std::uint64_t setNumber,
                     const std::shared_ptr<std::atomic<bool>>& begun,
                     std::shared_ptr<PaintedTile> tile);
    void markOutdated(const ServiceTile& tile);
    void compose(std::chrono::nanoseconds now);
    void showCover(const Set& set, double opacity);
    void show(const Set& set, double opacity);
    void trim();
    [[nodiscard]] Set* setOf(std::uint64_t number) const;

    TileLibrary& m_library;
    BasemapView m_view;
    std::unique_ptr<Set> m_current; ///< in view; null before the first is ready
    std::unique_ptr<Set> m_coming;  ///< being painted, to take its place; may be null
    std::unique_ptr<Set> m_world;   ///< the coarse picture below
    std::optional<Fade> m_fading;
    std::map<std::pair<std::uint64_t, TileKey>, Request> m_requests; ///< by set and tile
    bool m_hasJobs = false; ///< the workers may have jobs of ours that were not begun
    std::vector<ShownTile> m_shown;
    std::vector<std::shared_ptr<PaintedTile>> m_inView; ///< of the set in view
    std::uint64_t m_lastNumber = 0;
};

} // namespace vasker
