#pragma once
// Consecutive pieces of a text as a list for views.

#include "platform/ui/text/TextPieces.h"
#include "platform/ui/text/TextSelection.h"

#include <QAbstractListModel>
#include <QString>
#include <QtQmlIntegration>

#include <vector>

namespace vasker {

class ShownPieces : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS

  public:
    /// `piece` its number, `content` its text, `place` its top in item pixels; `anchor` and
    /// `cursor` the part that is selected, in code units of `content`; `holdsCursor` whether the
    /// cursor stands in it.
    enum Role { Piece = Qt::UserRole, Content, Place, Anchor, Cursor, HoldsCursor };

    struct Row {
        int piece;
        TextPiece range;
        double top;
    };

    using QAbstractListModel::QAbstractListModel;

    /// The rows are pieces of another text now.
    void setText(const QString& text);
    /// Rows that were there already stay; only what differs is told.
    void setRows(std::vector<Row> rows);
    void setSelection(const TextSelection& selection);
    [[nodiscard]] const std::vector<Row>& rows() const noexcept { return m_rows; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  private:
    void remove(std::size_t first, std::size_t count);
    void insert(std::size_t at, std::vector<Row>::const_iterator from, std::size_t count);

    QString m_text;
    std::vector<Row> m_rows;
    TextSelection m_selection;
};

} // namespace vasker
