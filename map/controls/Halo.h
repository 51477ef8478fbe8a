#pragma once
// The halo of a line of text on the map: its outline, drawn wide, so that it is readable on any
// background.

#include <QColor>
#include <QFont>
#include <QQuickPaintedItem>
#include <QString>

namespace vasker {

/// Surrounds a text whose line begins `Halo.reach` right of its left edge, and stands on
/// `textBaseline`.
class Halo : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text MEMBER m_text NOTIFY changed)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY changed)
    /// Logical pixels below its upper edge.
    Q_PROPERTY(double textBaseline MEMBER m_baseline NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    /// How much larger than the text it is on every side, in logical pixels.
    Q_PROPERTY(double reach READ reach CONSTANT)

  public:
    explicit Halo(QQuickItem* parent = nullptr);

    [[nodiscard]] static double reach() noexcept;

    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void changed();

  private:
    QString m_text;
    QFont m_font;
    double m_baseline = 0;
    QColor m_color;
};

} // namespace vasker
