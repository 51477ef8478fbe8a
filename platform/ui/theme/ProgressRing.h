#pragma once
// A ring with one bright quarter: work of unknown length.

#include <QColor>
#include <QQuickPaintedItem>

namespace vasker {

class ProgressRing : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor track MEMBER m_track NOTIFY looksChanged)
    Q_PROPERTY(QColor quarter MEMBER m_quarter NOTIFY looksChanged)

  public:
    explicit ProgressRing(QQuickItem* parent = nullptr);
    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void looksChanged();

  private:
    QColor m_track;
    QColor m_quarter;
};

} // namespace vasker
