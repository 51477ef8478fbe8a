#include "app/saving/MapPicture.h"

#include "platform/files/WholeFile.h"
#include "platform/ui/theme/TextStyles.h"

#include <QCoreApplication>
#include <QImageWriter>
#include <QPainter>
#include <QTextLayout>

#include <cmath>
#include <vector>

namespace vasker {

namespace {

constexpr double margin = 14;

/// A text set in lines of one width.
struct Paragraph {
    QString text;
    TextStyle style;
    QColor color;

    /// Draws the lines from `top` on, or only measures them where there is no painter. Returns
    /// where they end.
    double draw(QPainter* painter, double width, double top) const {
        QTextLayout layout(text, style.font);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            line.setPosition({0, top});
            top += style.lineHeight;
        }
        layout.endLayout();
        if (painter != nullptr) {
            painter->setPen(color);
            layout.draw(painter, {margin, style.halfLeading});
        }
        return top;
    }
};

} // namespace

QImage MapPicture::composed() const {
    const TextStyles styles = TextStyles::at(1);
    std::vector<Paragraph> paragraphs{{title, styles.headline, text}};
    for (const QString& note : notes) {
        if (!note.isEmpty()) {
            paragraphs.push_back({note, styles.caption, quietText});
        }
    }
    const double width = map.width() / scale - 2 * margin;
    const auto drawAll = [&](QPainter* painter) {
        double below = margin;
        for (const Paragraph& paragraph : paragraphs) {
            below = paragraph.draw(painter, width, below);
        }
        return below + margin;
    };
    const int strip = static_cast<int>(std::ceil(drawAll(nullptr) * scale));
    QImage picture(map.width(), map.height() + strip, QImage::Format_RGB32);
    picture.fill(background);
    QPainter painter(&picture);
    painter.drawImage(QRect(QPoint(), map.size()), map);
    painter.translate(0, map.height());
    painter.scale(scale, scale);
    drawAll(&painter);
    return picture;
}

QString MapPicture::write(const QString& path) const {
    if (!path.endsWith(QStringLiteral(".png"), Qt::CaseInsensitive)) {
        return QCoreApplication::translate("vasker::MapPicture", "its name has to end in .png.");
    }
    return writeWhole(path, [this](QIODevice& file) {
        QImageWriter writer(&file, "png");
        return writer.write(composed()) ? QString() : writer.errorString();
    });
}

} // namespace vasker
