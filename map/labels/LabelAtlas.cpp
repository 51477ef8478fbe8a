#include "map/labels/LabelAtlas.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

// Of a page, in logical pixels: enough for any text in two lines at a text scale of 2.
constexpr double pageWidth = 512;
constexpr double pageHeight = 128;

/// About four screens of labels. Pages that one frame needs are kept beyond that number.
constexpr std::size_t mostPages = 16;

/// Texts that were measured and perhaps never drawn are forgotten at this number.
constexpr qsizetype mostEntries = 10'000;

constexpr int dotsPerMetre = 3780; // 96 dots per inch, which labelFont() counts in

QImage emptyPage(double devicePixels, double textScale) {
    const double scale = devicePixels * std::max(1.0, textScale / 2);
    QImage image(static_cast<int>(std::ceil(pageWidth * scale)),
                 static_cast<int>(std::ceil(pageHeight * scale)),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    image.setDevicePixelRatio(devicePixels);
    image.fill(Qt::transparent);
    return image;
}

} // namespace

LabelAtlas::LabelAtlas(double devicePixels, double textScale)
    : m_devicePixels(std::clamp(devicePixels, 0.5, 8.0)),
      m_textScale(std::clamp(textScale, 0.5, 4.0)) {
    m_pages.push_back({emptyPage(m_devicePixels, m_textScale)});
}

QSizeF LabelAtlas::size(const Label& label) {
    return entryOf(label).size;
}

SetText LabelAtlas::textOf(const Label& label) {
    const Entry& known = entryOf(label);
    return {known.lines, known.size};
}

std::optional<LabelAtlas::Place> LabelAtlas::place(const Label& label) {
    const Entry& known = entryOf(label);
    if (known.size.isEmpty()) {
        return std::nullopt;
    }
    if (known.place) {
        return used(*known.place);
    }
    const SetText text{known.lines, known.size};
    const Place place = room(text.size + QSizeF(2 * margin, 2 * margin));
    QPainter painter(&m_pages[place.page].image);
    painter.setClipRect(place.region);
    painter.translate(place.region.topLeft() + QPointF(margin, margin));
    paintLabel(painter, text, label, m_textScale);
    entryOf(label).place = place;
    return used(place);
}

LabelAtlas::Place LabelAtlas::placeMark(BasemapTheme theme) {
    std::optional<Place>& mark = m_marks[static_cast<std::size_t>(theme)];
    if (!mark) {
        const double side = 2 * std::ceil(placeMarkReach + 0.5);
        mark = room({side, side});
        QPainter painter(&m_pages[mark->page].image);
        paintPlaceMark(painter, mark->region.center(), theme);
    }
    return used(*mark);
}

LabelAtlas::Place LabelAtlas::used(const Place& place) {
    m_pages[place.page].lastFrame = m_frame;
    return place;
}

LabelAtlas::Entry& LabelAtlas::entryOf(const Label& label) {
    const auto known = m_entries.find(label);
    if (known != m_entries.end()) {
        return *known;
    }
    if (m_entries.size() >= mostEntries) {
        m_entries.removeIf([](const auto& entry) { return !entry->place; });
    }
    SetText set = setText(label.text, label.style, m_textScale, &m_pages.front().image);
    return *m_entries.insert(label, {std::move(set.lines), set.size, std::nullopt});
}

std::optional<QRectF> LabelAtlas::roomIn(Page& page, int width, int height) const {
    if (page.shelfEnd + width > page.image.width()) {
        page.shelfTop += page.shelfHeight;
        page.shelfHeight = 0;
        page.shelfEnd = 0;
    }
    if (page.shelfTop + height > page.image.height()) {
        return std::nullopt;
    }
    const QRectF found(page.shelfEnd / m_devicePixels,
                       page.shelfTop / m_devicePixels,
                       width / m_devicePixels,
                       height / m_devicePixels);
    page.shelfHeight = std::max(page.shelfHeight, height);
    page.shelfEnd += width;
    return found;
}

LabelAtlas::Place LabelAtlas::room(QSizeF size) {
    const QImage& image = m_pages.front().image;
    const int width =
        std::min(image.width(), static_cast<int>(std::ceil(size.width() * m_devicePixels)));
    const int height =
        std::min(image.height(), static_cast<int>(std::ceil(size.height() * m_devicePixels)));
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        if (const auto region = roomIn(m_pages[i], width, height)) {
            return {i, *region};
        }
    }
    const auto oldest = std::ranges::min_element(m_pages, {}, &Page::lastFrame);
    auto number = static_cast<std::size_t>(oldest - m_pages.begin());
    if (m_pages.size() < mostPages || oldest->lastFrame == m_frame) {
        number = m_pages.size();
        m_pages.push_back({emptyPage(m_devicePixels, m_textScale)});
    } else {
        clear(number);
    }
    return {number, *roomIn(m_pages[number], width, height)};
}

void LabelAtlas::clear(std::size_t number) {
    m_entries.removeIf(
        [number](const auto& entry) { return entry->place && entry->place->page == number; });
    for (std::optional<Place>& mark : m_marks) {
        if (mark && mark->page == number) {
            mark.reset();
        }
    }
    m_pages[number] = {emptyPage(m_devicePixels, m_textScale)};
}

} // namespace vasker
