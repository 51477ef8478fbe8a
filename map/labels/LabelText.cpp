#include "map/labels/LabelText.h"

#include "map/style/MapTheme.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QGuiApplication>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>
#include <array>
#include <cmath>

namespace vasker {

namespace {

/// A longer text is truncated before it is set; its end would not be seen anyway.
constexpr qsizetype mostLetters = 300;
constexpr double textHaloRadius = 1.35;
constexpr int haloSteps = 8;
constexpr double pointsPerPixel = 72.0 / 96.0;
constexpr QChar ellipsis(0x2026);

constexpr double markRadius = 2.2;
constexpr double markStroke = 1.3;
constexpr double markHalo = 1.4;
static_assert(placeMarkReach >= markRadius + markStroke / 2 + markHalo);

struct TextStyle {
    double pixels = 11.5;
    QFont::Weight weight = QFont::Medium;
    double lineHeight = 14;
    double widest = 120; ///< of a line
    double tracking = 0;
    bool isItalic = false;
    bool isCapitals = false;
};

TextStyle textStyleOf(LabelStyle style) {
    switch (style) {
    case LabelStyle::country:
        return {12, QFont::DemiBold, 15, 190, 2.2, false, true};
    case LabelStyle::region:
        return {10.5, QFont::Medium, 14, 150, 1.6, false, true};
    case LabelStyle::city:
        return {12.5, QFont::DemiBold, 15, 130};
    case LabelStyle::town:
    case LabelStyle::village:
        return {11.5, QFont::Medium, 14, 120};
    case LabelStyle::water:
        return {11.5, QFont::Normal, 14, 110, 0.2, true};
    case LabelStyle::record:
        break;
    }
    return {11.5, QFont::DemiBold, 14, 170};
}

Qt::Alignment alignmentOf(const Label& label) {
    switch (label.alignment) {
    case LabelAlignment::left:
        return Qt::AlignLeft | Qt::AlignAbsolute; // whichever way the text is read
    case LabelAlignment::right:
        return Qt::AlignRight | Qt::AlignAbsolute;
    case LabelAlignment::centred:
        break;
    }
    return Qt::AlignHCenter;
}

QTextOption wrapping() {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

/// Sets all of a layout's text in lines of `width`. The number of lines.
int breakLines(QTextLayout& layout, double width, double lineHeight) {
    layout.beginLayout();
    int count = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, count * lineHeight + (lineHeight - line.height()) / 2});
        ++count;
    }
    layout.endLayout();
    return count;
}

double widestLine(const QTextLayout& layout) {
    double width = 0;
    for (int i = 0; i < layout.lineCount(); ++i) {
        width = std::max(width, layout.lineAt(i).naturalTextWidth());
    }
    return width;
}

QString lineOf(const QTextLayout& layout, int index) {
    const QTextLine line = layout.lineAt(index);
    return layout.text().mid(line.textStart(), line.textLength()).trimmed();
}

/// The narrowest width, to a few pixels, at which two lines suffice.
double balancedWidth(QTextLayout& layout, double widest) {
    double tooNarrow = widestLine(layout) / 2;
    double enough = widest;
    while (enough - tooNarrow > 4) {
        const double middle = (tooNarrow + enough) / 2;
        (breakLines(layout, middle, 1) <= 2 ? enough : tooNarrow) = middle;
    }
    return enough;
}

QString inLines(const QString& text, const QFont& font, double widest, const QPaintDevice* device) {
    QTextLayout layout(text, font, device);
    layout.setTextOption(wrapping());
    const int count = breakLines(layout, widest, 1);
    if (count <= 1) {
        return text;
    }
    if (count == 2) {
        breakLines(layout, balancedWidth(layout, widest), 1);
        return lineOf(layout, 0) + QChar::LineSeparator + lineOf(layout, 1);
    }
    const QString rest = text.mid(layout.lineAt(1).textStart()).trimmed();
    return lineOf(layout, 0) + QChar::LineSeparator +
           QFontMetricsF(font, device).elidedText(rest, Qt::ElideRight, widest);
}

QString tidied(const QString& text, bool isCapitals) {
    QString tidy = text.simplified();
    if (tidy.size() > mostLetters) {
        tidy.truncate(mostLetters);
        if (tidy.back().isHighSurrogate()) {
            tidy.chop(1);
        }
        tidy += ellipsis;
    }
    return isCapitals ? tidy.toUpper() : tidy;
}

QPainterPath outlineOf(const QList<QGlyphRun>& runs) {
    QPainterPath outline;
    for (const QGlyphRun& run : runs) {
        const QRawFont font = run.rawFont();
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> places = run.positions();
        for (qsizetype i = 0; i < glyphs.size(); ++i) {
            outline.addPath(font.pathForGlyph(glyphs[i]).translated(places[i]));
        }
    }
    return outline;
}

QColor textColor(LabelStyle style, const MapTheme& theme) {
    switch (style) {
    case LabelStyle::country:
    case LabelStyle::region:
        return theme.regionLabel;
    case LabelStyle::water:
        return theme.waterLabel;
    case LabelStyle::record:
        return theme.recordLabel;
    case LabelStyle::city:
    case LabelStyle::town:
    case LabelStyle::village:
        break;
    }
    return theme.placeLabel;
}

} // namespace

QFont labelFont(LabelStyle style, double textScale) {
    const TextStyle text = textStyleOf(style);
    QFont font = QGuiApplication::font();
    font.setPointSizeF(text.pixels * textScale * pointsPerPixel);
    font.setWeight(text.weight);
    font.setItalic(text.isItalic);
    font.setLetterSpacing(QFont::AbsoluteSpacing, text.tracking * textScale);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

SetText
setText(const QString& text, LabelStyle style, double textScale, const QPaintDevice* device) {
    const TextStyle how = textStyleOf(style);
    const QFont font = labelFont(style, textScale);
    SetText set{inLines(tidied(text, how.isCapitals), font, how.widest * textScale, device), {}};
    if (set.lines.isEmpty()) {
        return set;
    }
    QTextLayout layout(set.lines, font, device);
    layout.setTextOption(wrapping());
    const double lineHeight = std::ceil(how.lineHeight * textScale);
    const int count = breakLines(layout, 1e6, lineHeight);
    set.size = {std::ceil(widestLine(layout)), count * lineHeight};
    return set;
}

void paintLabel(QPainter& painter, const SetText& text, const Label& label, double textScale) {
    const TextStyle how = textStyleOf(label.style);
    const MapTheme& theme = mapTheme(label.theme);
    QTextLayout layout(text.lines, labelFont(label.style, textScale), painter.device());
    QTextOption option(alignmentOf(label));
    option.setWrapMode(QTextOption::ManualWrap);
    layout.setTextOption(option);
    breakLines(layout, text.size.width(), std::ceil(how.lineHeight * textScale));
    const QList<QGlyphRun> runs = layout.glyphRuns();
    const auto draw = [&](QPointF shift) {
        for (const QGlyphRun& run : runs) {
            painter.drawGlyphRun(shift, run);
        }
    };
    if (painter.paintEngine()->type() == QPaintEngine::Raster) {
        painter.setPen(theme.labelHalo);
        for (int step = 0; step < haloSteps; ++step) {
            const double angle = 2 * M_PI * step / haloSteps;
            draw(QPointF(std::cos(angle), std::sin(angle)) * (textHaloRadius * textScale));
        }
    } else { // a page keeps what it is given: the text once, and the halo as an outline
        const QPen halo(theme.labelHalo,
                        2 * textHaloRadius * textScale,
                        Qt::SolidLine,
                        Qt::RoundCap,
                        Qt::RoundJoin);
        painter.strokePath(outlineOf(runs), halo);
    }
    painter.setPen(textColor(label.style, theme));
    draw({0, 0});
}

void paintPlaceMark(QPainter& painter, QPointF centre, BasemapTheme theme) {
    const MapTheme& colors = mapTheme(theme);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(colors.labelHalo);
    painter.setPen(QPen(colors.labelHalo, markStroke + 2 * markHalo));
    painter.drawEllipse(centre, markRadius, markRadius);
    painter.setPen(QPen(colors.placeLabel, markStroke));
    painter.drawEllipse(centre, markRadius, markRadius);
    painter.restore();
}

} // namespace vasker
