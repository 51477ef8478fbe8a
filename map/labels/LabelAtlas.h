#pragma once
// One picture that gathers the names on the map as they are needed: texts with their halo, drawn
// once each, at the screen's density. It grows to a limit and then starts anew.

#include "map/style/TilePicture.h"

#include <QHash>
#include <QImage>
#include <QRectF>
#include <QString>

#include <array>
#include <cstdint>

namespace vasker {

enum class LabelStyle : std::uint8_t { country, region, city, town, village, water, title };

/// How the names of a kind of place are set.
[[nodiscard]] LabelStyle labelStyleOf(PlaceLabel::Kind kind) noexcept;

struct Label {
    QString text;
    LabelStyle style;
    BasemapTheme look;
    friend bool operator==(const Label&, const Label&) = default;
};
[[nodiscard]] size_t qHash(const Label& label, size_t seed = 0) noexcept;

class LabelAtlas {
  public:
    /// `devicePixels` per logical pixel; `textScale` is the desktop's.
    explicit LabelAtlas(double devicePixels, double textScale = 1);

    /// What the text covers, in logical pixels, without its halo: what a layout needs to know.
    /// Long names take two lines; what does not fit into these ends in an ellipsis. Nothing is
    /// drawn yet. A text without any letter has no size.
    [[nodiscard]] QSizeF size(const Label& label);
    /// Where the text stands in the picture, in logical pixels: its size and `margin` on each side.
    /// Draws it if it was not yet there.
    [[nodiscard]] QRectF cut(const Label& label);
    /// Whether the text was measured already: size() is quick then.
    [[nodiscard]] bool knows(const Label& label) const { return m_entries.contains(label); }
    /// The small ring that stands on the points of places; its centre is the point.
    [[nodiscard]] QRectF markCut(BasemapTheme look);

    /// Room for the halo around a text, in logical pixels.
    static constexpr double margin = 3;

    [[nodiscard]] const QImage& image() const noexcept { return m_image; }
    /// Grows with every change of the picture.
    [[nodiscard]] std::uint64_t revision() const noexcept { return m_revision; }
    /// Grows when the picture starts anew: all cuts from before are void then, also those of the
    /// same frame. The picture holds the names of a screen several times.
    [[nodiscard]] std::uint64_t generation() const noexcept { return m_generation; }

  private:
    struct Entry {
        QString lines; ///< as they are set, with line separators
        QSizeF size;
        QRectF cut; ///< empty: not drawn
    };

    Entry& entryOf(const Label& label);
    /// A free rectangle of whole device pixels, at least `size` logical ones.
    QRectF room(QSizeF size);
    void startAnew();
    void growTo(int deviceHeight);

    double m_devicePixels;
    double m_textScale;
    QImage m_image;
    QHash<Label, Entry> m_entries;
    std::array<QRectF, 4> m_marks; ///< by look; empty: not drawn
    std::uint64_t m_revision = 0;
    std::uint64_t m_generation = 0;
    int m_shelfTop = 0; ///< device pixels: the row of cuts that is being filled
    int m_shelfHeight = 0;
    int m_shelfEnd = 0;
};

} // namespace vasker
