#pragma once
// Keeps the rows of a list in the tree in the order in which they are seen. A view makes and reuses
// rows as they come into sight; assistive tools read them in the order of the tree.

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QTimer>
#include <QtQmlIntegration>

namespace vasker {

class RowOrder : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// The parent of the rows. A row is a child with the property "positionInSet" above 0; other
    /// children stay where they are.
    Q_PROPERTY(QQuickItem* parentOfRows MEMBER m_parent)

  public:
    explicit RowOrder(QObject* parent = nullptr);

    /// Rows have come, or others are in them: orders them soon, once for many calls.
    Q_INVOKABLE void refresh();

  private:
    void order() const;

    QPointer<QQuickItem> m_parent;
    QTimer m_soon;
};

} // namespace vasker
