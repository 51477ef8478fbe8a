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
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    /// The side in logical pixels, also the item's implicit size.
    Q_PROPERTY(double size READ size WRITE setSize NOTIFY sizeChanged)

  public:
    explicit Icon(QQuickItem* parent = nullptr);

    [[nodiscard]] const QString& name() const noexcept { return m_name; }
    void setName(const QString& name);
    [[nodiscard]] const QColor& color() const noexcept { return m_color; }
    void setColor(const QColor& color);
    [[nodiscard]] double size() const noexcept { return m_size; }
    void setSize(double size);

  Q_SIGNALS:
    void nameChanged();
    void colorChanged();
    void sizeChanged();

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
