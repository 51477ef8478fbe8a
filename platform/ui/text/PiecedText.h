#pragma once
// A long text of which only what is in view is laid out: cut into pieces, of which a view makes
// those that this item lists. Heights of other pieces are estimates until they have been seen.
// Holds the selection, which may reach over all pieces.

#include "platform/ui/text/ShownPieces.h"
#include "platform/ui/text/TextSelection.h"
#include "platform/ui/theme/TextStyles.h"

#include <QPointer>
#include <QQuickItem>
#include <QString>

#include <vector>

namespace vasker {

class PiecedText : public QQuickItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(PiecedTextItem)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(vasker::TextStyle textStyle READ textStyle WRITE setTextStyle NOTIFY styleChanged)
    /// The Flickable around it, which scrolls it; null: nothing is in view.
    Q_PROPERTY(QQuickItem* scroller READ scroller NOTIFY scrollerChanged)
    /// The pieces in view, in order; see ShownPieces.
    Q_PROPERTY(vasker::ShownPieces* shown READ shown CONSTANT)
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY selectionChanged)

  public:
    explicit PiecedText(QQuickItem* parent = nullptr);

    [[nodiscard]] const QString& text() const noexcept { return m_text; }
    void setText(const QString& text);
    [[nodiscard]] const TextStyle& textStyle() const noexcept { return m_style; }
    void setTextStyle(const TextStyle& style);
    [[nodiscard]] QQuickItem* scroller() const noexcept { return m_scroller; }
    [[nodiscard]] ShownPieces* shown() noexcept { return &m_shown; }
    [[nodiscard]] QString selectedText() const { return m_selection.of(m_text); }

    /// How tall the piece with that number is, once it is laid out. What is in view stays where it
    /// is.
    Q_INVOKABLE void setPieceHeight(int piece, double height);
    /// The row of `shown` that stands at `y`, or the nearest one.
    [[nodiscard]] Q_INVOKABLE int rowAt(double y) const;
    /// Where the piece of a row of `shown` begins in the text, in code units.
    [[nodiscard]] Q_INVOKABLE int startOf(int row) const;

    /// Of code units of the text.
    Q_INVOKABLE void select(int anchor, int cursor);
    Q_INVOKABLE void selectWord(int at);
    Q_INVOKABLE void extendSelection(int cursor);
    /// What a key does to the selection, or to the clipboard; whether it did anything.
    Q_INVOKABLE bool press(int key, int modifiers);

  Q_SIGNALS:
    void textChanged();
    void styleChanged();
    void scrollerChanged();
    void selectionChanged();

  private Q_SLOTS:
    void moveInView() { polish(); }

  protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void updatePolish() override;

  private:
    void setScroller(QQuickItem* flickable);
    void cut();
    void estimate();
    void place();
    void setSelection(TextSelection selection);

    QString m_text;
    TextStyle m_style;
    QPointer<QQuickItem> m_scroller;
    std::vector<TextPiece> m_pieces;
    std::vector<double> m_tops; ///< of each piece, in item pixels; at last the end of them all
    TextSelection m_selection;
    ShownPieces m_shown;
};

} // namespace vasker
