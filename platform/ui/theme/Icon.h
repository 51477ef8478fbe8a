#pragma once
// One icon in one colour, drawn at the screen's own resolution.

#include <QColor>
#include <QQuickItem>
#include <QString>

namespace vasker {

class Icon : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// The icon's name; an unknown one shows "mappin".
    Q_PROPERTY(QString name MEMBER m_name NOTIFY looksChanged)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY looksChanged)
    /// The side in logical pixels, also the item's implicit size.
    Q_PROPERTY(double size MEMBER m_size NOTIFY looksChanged)

  public:
    explicit Icon(QQuickItem* parent = nullptr);

  Q_SIGNALS:
    void looksChanged();

  protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData*) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

  private:
    void redraw();

    QString m_name;
    QColor m_color;
    double m_size = 20;
    bool m_pictureIsStale = true;
};

} // namespace vasker
