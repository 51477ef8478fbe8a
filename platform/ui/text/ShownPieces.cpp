#include "platform/ui/text/ShownPieces.h"

#include <algorithm>

namespace vasker {

void ShownPieces::setText(const QString& text) {
    beginResetModel();
    m_text = text;
    m_rows.clear();
    m_selection = {};
    endResetModel();
}

void ShownPieces::setRows(std::vector<Row> rows) {
    const auto before = [](const Row& row, int piece) { return row.piece < piece; };
    if (rows.empty() || m_rows.empty() || rows.front().piece > m_rows.back().piece ||
        rows.back().piece < m_rows.front().piece) {
        remove(0, m_rows.size());
        insert(0, rows.begin(), rows.size());
        return;
    }
    // Both are consecutive: what is common to them stays.
    const auto first =
        std::lower_bound(m_rows.begin(), m_rows.end(), rows.front().piece, before) - m_rows.begin();
    remove(0, static_cast<std::size_t>(first));
    const auto end = std::lower_bound(m_rows.begin(), m_rows.end(), rows.back().piece + 1, before) -
                     m_rows.begin();
    remove(static_cast<std::size_t>(end), m_rows.size() - static_cast<std::size_t>(end));
    const int firstKept = m_rows.front().piece;
    const int endKept = m_rows.back().piece + 1;
    insert(0, rows.begin(), static_cast<std::size_t>(firstKept - rows.front().piece));
    insert(m_rows.size(),
           rows.end() - (rows.back().piece + 1 - endKept),
           static_cast<std::size_t>(rows.back().piece + 1 - endKept));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (m_rows[i].top != rows[i].top) {
            m_rows[i].top = rows[i].top;
            const QModelIndex moved = index(static_cast<int>(i));
            Q_EMIT dataChanged(moved, moved, {Place});
        }
    }
}

void ShownPieces::setSelection(const TextSelection& selection) {
    m_selection = selection;
    if (!m_rows.empty()) {
        Q_EMIT dataChanged(
            index(0), index(static_cast<int>(m_rows.size()) - 1), {Anchor, Cursor, HoldsCursor});
    }
}

int ShownPieces::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ShownPieces::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
        return {};
    }
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    const auto within = [&row](qsizetype position) {
        return static_cast<int>(
            std::clamp<qsizetype>(position - row.range.start, 0, row.range.length));
    };
    switch (role) {
    case Piece:
        return row.piece;
    case Content:
        return m_text.sliced(row.range.start, row.range.length);
    case Place:
        return row.top;
    case Anchor:
        return within(m_selection.anchor);
    case Cursor:
        return within(m_selection.cursor);
    case HoldsCursor:
        return m_selection.cursor >= row.range.start &&
               m_selection.cursor <= row.range.start + row.range.length;
    default:
        return {};
    }
}

QHash<int, QByteArray> ShownPieces::roleNames() const {
    return {{Piece, "piece"},
            {Content, "content"},
            {Place, "place"},
            {Anchor, "anchor"},
            {Cursor, "cursor"},
            {HoldsCursor, "holdsCursor"}};
}

void ShownPieces::remove(std::size_t first, std::size_t count) {
    if (count > 0) {
        beginRemoveRows({}, static_cast<int>(first), static_cast<int>(first + count) - 1);
        const auto begin = m_rows.begin() + static_cast<std::ptrdiff_t>(first);
        m_rows.erase(begin, begin + static_cast<std::ptrdiff_t>(count));
        endRemoveRows();
    }
}

void ShownPieces::insert(std::size_t at, std::vector<Row>::const_iterator from, std::size_t count) {
    if (count > 0) {
        beginInsertRows({}, static_cast<int>(at), static_cast<int>(at + count) - 1);
        m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(at),
                      from,
                      from + static_cast<std::ptrdiff_t>(count));
        endInsertRows();
    }
}

} // namespace vasker
