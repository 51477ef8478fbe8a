#pragma once
// The shadow and hairline of a raised rounded surface, from one picture baked per elevation and
// stretched between its corners.

#include <QQuickItem>

namespace vasker {

class Shadow : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// The elevation: 1 controls on the map, 2 menus and cards, 3 sheets.
    Q_PROPERTY(int level MEMBER m_level NOTIFY looksChanged)
    /// The radius of the surface's corners, in logical pixels.
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY looksChanged)
    Q_PROPERTY(bool dark MEMBER m_dark NOTIFY looksChanged)

  public:
    explicit Shadow(QQuickItem* parent = nullptr);

  Q_SIGNALS:
    void looksChanged();

  protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData*) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

  private:
    int m_level = 2;
    double m_radius = 0;
    bool m_dark = false;
    double m_reach = 0; ///< of the corners in the picture
    bool m_pictureIsStale = true;
};

} // namespace vasker
