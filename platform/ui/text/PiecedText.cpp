#include "platform/ui/text/PiecedText.h"

#include "platform/Clipboard.h"

#include <QFontMetricsF>
#include <QKeyEvent>

#include <algorithm>
#include <cmath>

namespace vasker {

namespace {

/// Beyond the edges of the view, in pixels: what one notch of the wheel brings.
constexpr double laidOutAhead = 160;

/// How much of a text its average character is taken from.
constexpr qsizetype sampleSize = 256;

double characterWidth(const QString& text, const QFontMetricsF& metrics) {
    const QString sample = text.first(std::min(text.size(), sampleSize)).simplified();
    return sample.isEmpty()
               ? metrics.averageCharWidth()
               : metrics.horizontalAdvance(sample) / static_cast<double>(sample.size());
}

} // namespace

PiecedText::PiecedText(QQuickItem* parent) : QQuickItem(parent) {
    cut();
}

void PiecedText::setText(const QString& text) {
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")); // as text documents do
    if (lines != m_text) {
        m_text = std::move(lines);
        cut();
        Q_EMIT textChanged();
        Q_EMIT selectionChanged();
    }
}

void PiecedText::setTextStyle(const TextStyle& style) {
    m_style = style;
    estimate();
    Q_EMIT styleChanged();
}

void PiecedText::setScroller(QQuickItem* flickable) {
    if (m_scroller == flickable) {
        return;
    }
    if (m_scroller != nullptr) {
        disconnect(m_scroller, nullptr, this, nullptr);
    }
    m_scroller = flickable;
    if (flickable != nullptr) {
        // Whatever moves the text within its view changes one of these.
        connect(flickable, SIGNAL(contentYChanged()), this, SLOT(moveInView()));
        connect(flickable, SIGNAL(contentHeightChanged()), this, SLOT(moveInView()));
        connect(flickable, &QQuickItem::heightChanged, this, &PiecedText::moveInView);
    }
    polish();
    Q_EMIT scrollerChanged();
}

void PiecedText::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemSceneChange) {
        QQuickItem* around = window() == nullptr ? nullptr : parentItem();
        while (around != nullptr && !around->inherits("QQuickFlickable")) {
            around = around->parentItem();
        }
        setScroller(around);
    }
    QQuickItem::itemChange(change, data);
}

void PiecedText::cut() {
    m_pieces = cutIntoPieces(m_text);
    m_selection = {};
    m_shown.setText(m_text);
    estimate();
}

/// Forgets all heights.
void PiecedText::estimate() {
    const QFontMetricsF metrics(m_style.font);
    const double perLine = std::max(1.0, width() / characterWidth(m_text, metrics));
    double top = m_style.halfLeading;
    m_tops.assign(1, top);
    for (const TextPiece& piece : m_pieces) {
        const QStringView content = QStringView(m_text).sliced(piece.start, piece.length);
        double lines = 0;
        for (const QStringView paragraph : content.split(u'\n')) {
            lines += std::max(1.0, std::ceil(static_cast<double>(paragraph.size()) / perLine));
        }
        top += lines * std::ceil(metrics.height());
        m_tops.push_back(top);
    }
    m_shown.setRows({});
    place();
}

void PiecedText::place() {
    setImplicitHeight(m_tops.back() + m_style.halfLeading);
    polish();
}

void PiecedText::setPieceHeight(int piece, double height) {
    const auto number = static_cast<std::size_t>(piece);
    const double delta = height - (m_tops[number + 1] - m_tops[number]);
    if (delta == 0) {
        return;
    }
    for (std::size_t i = number + 1; i < m_tops.size(); ++i) {
        m_tops[i] += delta;
    }
    QQuickItem* const scroller = m_scroller.data();
    if (scroller != nullptr && mapToItem(scroller, QPointF(0, m_tops[number])).y() < 0) {
        scroller->setProperty("contentY", scroller->property("contentY").toDouble() + delta);
    }
    place();
}

void PiecedText::updatePolish() {
    const QQuickItem* const scroller = m_scroller.data();
    if (scroller == nullptr || width() <= 0) {
        return;
    }
    const QRectF view = mapRectFromItem(scroller, scroller->boundingRect());
    const double top = view.top() - laidOutAhead;
    const double bottom = view.bottom() + laidOutAhead;
    std::vector<ShownPieces::Row> rows;
    for (std::size_t i = 0; i < m_pieces.size(); ++i) {
        if (m_tops[i + 1] > top && m_tops[i] < bottom) {
            rows.push_back({static_cast<int>(i), m_pieces[i], m_tops[i]});
        }
    }
    m_shown.setRows(std::move(rows));
}

void PiecedText::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.width() != oldGeometry.width()) {
        estimate();
    } else {
        polish();
    }
}

int PiecedText::rowAt(double y) const {
    const auto& rows = m_shown.rows();
    const auto below = std::upper_bound(
        rows.begin(), rows.end(), y, [](double place, const auto& row) { return place < row.top; });
    return static_cast<int>(std::max<std::ptrdiff_t>(0, below - rows.begin() - 1));
}

int PiecedText::startOf(int row) const {
    return static_cast<int>(m_shown.rows()[static_cast<std::size_t>(row)].range.start);
}

void PiecedText::setSelection(TextSelection selection) {
    selection.anchor = std::clamp<qsizetype>(selection.anchor, 0, m_text.size());
    selection.cursor = std::clamp<qsizetype>(selection.cursor, 0, m_text.size());
    if (selection != m_selection) {
        m_selection = selection;
        m_shown.setSelection(selection);
        Q_EMIT selectionChanged();
    }
}

void PiecedText::select(int anchor, int cursor) {
    setSelection({anchor, cursor});
}

void PiecedText::selectWord(int at) {
    setSelection(TextSelection::wordAt(m_text, at));
}

void PiecedText::extendSelection(int cursor) {
    setSelection({m_selection.anchor, cursor});
}

bool PiecedText::press(int key, int modifiers) {
    const QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    if (event.matches(QKeySequence::Copy)) {
        const QString selected = selectedText();
        if (!selected.isEmpty()) {
            Clipboard().setText(selected);
        }
        return true;
    }
    const auto selection = m_selection.after(event, m_text);
    if (selection) {
        setSelection(*selection);
    }
    return selection.has_value();
}

} // namespace vasker
