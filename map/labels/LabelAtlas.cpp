#include "map/labels/LabelAtlas.h"

#include "map/labels/LabelText.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

// In device pixels.
constexpr int pictureWidth = 2048;
constexpr int firstHeight = 256;
constexpr int greatestHeight = 1536; // the whole picture is uploaded with every new name

/// Texts that were measured and perhaps never drawn are forgotten with the rest at this number.
constexpr qsizetype mostEntries = 10'000;

constexpr int dotsPerMetre = 3780; // 96 dots per inch, which labelFont() counts in

constexpr double markRadius = 2.2;
constexpr double markStroke = 1.3;
constexpr double markHalo = 1.4;

QImage emptyPicture(int height, double devicePixels) {
    QImage image(pictureWidth, height, QImage::Format_ARGB32_Premultiplied);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    image.setDevicePixelRatio(devicePixels);
    image.fill(Qt::transparent);
    return image;
}

void paintMark(QPainter& painter, QPointF centre, BasemapTheme look) {
    const LabelColors colors = labelColors(LabelStyle::town, look);
    painter.setBrush(colors.halo);
    painter.setPen(QPen(colors.halo, markStroke + 2 * markHalo));
    painter.drawEllipse(centre, markRadius, markRadius);
    painter.setPen(QPen(colors.text, markStroke));
    painter.drawEllipse(centre, markRadius, markRadius);
}

} // namespace

LabelStyle labelStyleOf(PlaceLabel::Kind kind) noexcept {
    switch (kind) {
    case PlaceLabel::Kind::country:
        return LabelStyle::country;
    case PlaceLabel::Kind::region:
        return LabelStyle::region;
    case PlaceLabel::Kind::capital:
    case PlaceLabel::Kind::city:
        return LabelStyle::city;
    case PlaceLabel::Kind::town:
        return LabelStyle::town;
    case PlaceLabel::Kind::water:
        return LabelStyle::water;
    case PlaceLabel::Kind::village:
        break;
    }
    return LabelStyle::village;
}

size_t qHash(const Label& label, size_t seed) noexcept {
    return qHashMulti(
        seed, label.text, static_cast<int>(label.style), static_cast<int>(label.look));
}

LabelAtlas::LabelAtlas(double devicePixels, double textScale)
    : m_devicePixels(std::clamp(devicePixels, 0.5, 8.0)),
      m_textScale(std::clamp(textScale, 0.5, 4.0)),
      m_image(emptyPicture(firstHeight, m_devicePixels)) {}

QSizeF LabelAtlas::size(const Label& label) {
    return entryOf(label).size;
}

QRectF LabelAtlas::cut(const Label& label) {
    if (const Entry& known = entryOf(label); known.size.isEmpty() || !known.cut.isEmpty()) {
        return known.cut;
    }
    const QSizeF size = entryOf(label).size;
    const QRectF cut = room(size + QSizeF(2 * margin, 2 * margin));
    // Starting anew forgets the entry.
    Entry& entry = entryOf(label);
    entry.cut = cut;
    QPainter painter(&m_image);
    painter.setClipRect(cut);
    painter.translate(cut.topLeft() + QPointF(margin, margin));
    paintLabel(painter, {entry.lines, size}, label, m_textScale);
    return cut;
}

QRectF LabelAtlas::markCut(BasemapTheme look) {
    const auto place = static_cast<std::size_t>(look);
    if (m_marks[place].isEmpty()) {
        const double side = 2 * std::ceil(markRadius + markStroke / 2 + markHalo + 0.5);
        m_marks[place] = room({side, side});
        QPainter painter(&m_image);
        painter.setRenderHint(QPainter::Antialiasing);
        paintMark(painter, m_marks[place].center(), look);
    }
    return m_marks[place];
}

LabelAtlas::Entry& LabelAtlas::entryOf(const Label& label) {
    const auto known = m_entries.find(label);
    if (known != m_entries.end()) {
        return *known;
    }
    if (m_entries.size() >= mostEntries) {
        startAnew();
    }
    SetText set = setText(label.text, label.style, m_textScale, &m_image);
    return *m_entries.insert(label, {std::move(set.lines), set.size, QRectF()});
}

QRectF LabelAtlas::room(QSizeF size) {
    const int width =
        std::min(pictureWidth, static_cast<int>(std::ceil(size.width() * m_devicePixels)));
    const int height =
        std::min(greatestHeight, static_cast<int>(std::ceil(size.height() * m_devicePixels)));
    if (m_shelfEnd + width > pictureWidth) {
        m_shelfTop += m_shelfHeight;
        m_shelfHeight = 0;
        m_shelfEnd = 0;
    }
    if (m_shelfTop + height > greatestHeight) {
        startAnew();
    }
    m_shelfHeight = std::max(m_shelfHeight, height);
    growTo(m_shelfTop + m_shelfHeight);
    const QRectF found(m_shelfEnd / m_devicePixels,
                       m_shelfTop / m_devicePixels,
                       width / m_devicePixels,
                       height / m_devicePixels);
    m_shelfEnd += width;
    ++m_revision;
    return found;
}

void LabelAtlas::startAnew() {
    m_entries.clear();
    m_marks = {};
    m_image.fill(Qt::transparent);
    m_shelfTop = 0;
    m_shelfHeight = 0;
    m_shelfEnd = 0;
    ++m_generation;
    ++m_revision;
}

void LabelAtlas::growTo(int deviceHeight) {
    int height = m_image.height();
    while (height < deviceHeight) {
        height *= 2;
    }
    if (height == m_image.height()) {
        return;
    }
    QImage grown = emptyPicture(height, m_devicePixels);
    std::copy_n(m_image.constBits(), m_image.sizeInBytes(), grown.bits());
    m_image = std::move(grown);
}

} // namespace vasker
