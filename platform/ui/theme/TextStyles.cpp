#include "platform/ui/theme/TextStyles.h"

#include <QFontMetricsF>

#include <cmath>

namespace vasker {

TextStyles TextStyles::at(double scale) {
    // Size and height of a line in pixels.
    const auto style = [scale](
                           double size, double line, QFont::Weight weight, double tracking = 0) {
        TextStyle made;
        made.font.setPixelSize(static_cast<int>(std::lround(size * scale)));
        made.font.setWeight(weight);
        made.font.setLetterSpacing(QFont::AbsoluteSpacing, tracking * scale);
        made.lineHeight = std::round(line * scale);
        made.halfLeading = std::round((made.lineHeight - QFontMetricsF(made.font).height()) / 2);
        return made;
    };
    return {.title2 = style(20, 26, QFont::Bold, -0.2),
            .emptyTitle = style(17, 23, QFont::DemiBold),
            .headline = style(15, 22, QFont::DemiBold),
            .body = style(15, 22, QFont::Normal),
            .subheadline = style(14, 20, QFont::Medium),
            .publisher = style(14, 20, QFont::Bold),
            .rowName = style(14, 19, QFont::Medium),
            .field = style(14, 20, QFont::Normal),
            .footnote = style(13, 19, QFont::Normal),
            .sectionTitle = style(13, 19, QFont::DemiBold),
            .caption = style(12, 16, QFont::Normal),
            .captionLine = style(12, 15, QFont::Normal),
            .captionMedium = style(12, 16, QFont::Medium),
            .mapNote = style(11, 14, QFont::Normal)};
}

} // namespace vasker
