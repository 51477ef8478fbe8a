#pragma once
// The text styles of the interface: one table, by what they are used for.

#include <QFont>
#include <QtQmlIntegration>
#include <qqml.h>

namespace vasker {

/// A font, and lines of equal height.
struct TextStyle {
    Q_GADGET
    QML_VALUE_TYPE(textStyle)
    Q_PROPERTY(QFont font MEMBER font CONSTANT)
    Q_PROPERTY(double lineHeight MEMBER lineHeight CONSTANT)
    Q_PROPERTY(double halfLeading MEMBER halfLeading CONSTANT)

  public:
    QFont font;
    double lineHeight = 0; ///< pixels
    /// Half of what a line is taller than its letters: keeps them in the middle of the line.
    double halfLeading = 0;
};

struct TextStyles {
    Q_GADGET
    QML_VALUE_TYPE(textStyles)
    Q_PROPERTY(vasker::TextStyle title2 MEMBER title2 CONSTANT)
    Q_PROPERTY(vasker::TextStyle emptyTitle MEMBER emptyTitle CONSTANT)
    Q_PROPERTY(vasker::TextStyle headline MEMBER headline CONSTANT)
    Q_PROPERTY(vasker::TextStyle body MEMBER body CONSTANT)
    Q_PROPERTY(vasker::TextStyle subheadline MEMBER subheadline CONSTANT)
    Q_PROPERTY(vasker::TextStyle publisher MEMBER publisher CONSTANT)
    Q_PROPERTY(vasker::TextStyle rowName MEMBER rowName CONSTANT)
    Q_PROPERTY(vasker::TextStyle field MEMBER field CONSTANT)
    Q_PROPERTY(vasker::TextStyle footnote MEMBER footnote CONSTANT)
    Q_PROPERTY(vasker::TextStyle sectionTitle MEMBER sectionTitle CONSTANT)
    Q_PROPERTY(vasker::TextStyle caption MEMBER caption CONSTANT)
    Q_PROPERTY(vasker::TextStyle captionLine MEMBER captionLine CONSTANT)
    Q_PROPERTY(vasker::TextStyle captionMedium MEMBER captionMedium CONSTANT)
    Q_PROPERTY(vasker::TextStyle mapNote MEMBER mapNote CONSTANT)

  public:
    TextStyle title2;
    TextStyle emptyTitle;
    TextStyle headline;
    TextStyle body;
    TextStyle subheadline;
    TextStyle publisher;
    TextStyle rowName;
    TextStyle field;
    TextStyle footnote;
    TextStyle sectionTitle;
    TextStyle caption;
    TextStyle captionLine;
    TextStyle captionMedium; ///< titles of menus, links
    TextStyle mapNote;       ///< scale and attribution, on the map itself

    /// The styles in the application's font, at `scale` times their usual size.
    [[nodiscard]] static TextStyles at(double scale);
};

} // namespace vasker
