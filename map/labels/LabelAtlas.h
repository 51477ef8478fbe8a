#pragma once
// The texts on the map, drawn with their halo when first needed, at the screen's density. The atlas
// consists of pages of equal size, so that a new text changes one small image; the page used
// longest ago makes room for new texts.

#include "map/labels/Label.h"
#include "map/labels/LabelText.h"

#include <QHash>
#include <QImage>
#include <QRectF>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace vasker {

class LabelAtlas {
  public:
    /// Room for the halo around a text, in logical pixels.
    static constexpr double margin = 3;

    /// `devicePixels` per logical pixel; `textScale` is the desktop's.
    explicit LabelAtlas(double devicePixels, double textScale = 1);

    /// Places found from here on are kept until the next call.
    void beginFrame() noexcept { ++m_frame; }

    /// What the text covers, in logical pixels, without its halo. Long texts take two lines; what
    /// does not fit into these ends in an ellipsis. Draws nothing. A text without any letter has no
    /// size.
    [[nodiscard]] QSizeF size(const Label& label);
    /// The text in its lines.
    [[nodiscard]] SetText textOf(const Label& label);
    /// Whether the text was measured already: size() is quick then.
    [[nodiscard]] bool knows(const Label& label) const { return m_entries.contains(label); }

    struct Place {
        std::size_t page;
        QRectF region; ///< in logical pixels
    };
    /// Where the text stands: its size and `margin` on each side. Nothing for a text of no size.
    [[nodiscard]] std::optional<Place> place(const Label& label);
    /// The small ring that marks the points of places; its centre is the point.
    [[nodiscard]] Place placeMark(BasemapTheme theme);

    [[nodiscard]] std::size_t pages() const noexcept { return m_pages.size(); }
    [[nodiscard]] const QImage& page(std::size_t number) const { return m_pages[number].image; }

  private:
    struct Entry {
        QString lines; ///< as they are set, with line separators
        QSizeF size;
        std::optional<Place> place; ///< none: not drawn
    };
    struct Page {
        QImage image;
        std::uint64_t lastFrame = 0; ///< in which a place of it was found
        int shelfTop = 0;            ///< device pixels: the row of texts that is being filled
        int shelfHeight = 0;
        int shelfEnd = 0;
    };

    Entry& entryOf(const Label& label);
    /// Free room of at least `size` logical pixels.
    Place room(QSizeF size);
    std::optional<QRectF> roomIn(Page& page, int width, int height) const;
    void clear(std::size_t number);
    Place used(const Place& place);

    double m_devicePixels;
    double m_textScale;
    std::uint64_t m_frame = 0;
    std::vector<Page> m_pages;
    QHash<Label, Entry> m_entries;
    std::array<std::optional<Place>, basemapThemeCount> m_marks; ///< by theme
};

} // namespace vasker
