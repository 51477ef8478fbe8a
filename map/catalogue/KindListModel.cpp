#include "map/catalogue/KindListModel.h"

#include "presentation/RecordText.h"
#include "presentation/Symbols.h"

#include <numeric>

namespace vasker {

namespace {

const QString allKinds = QStringLiteral("all");

QString symbolOf(const QString& value) {
    return value == allKinds ? QString() : toQString(symbol(value.toStdString()));
}

int tintOf(const QString& value) {
    return static_cast<int>(color(value.toStdString()));
}

} // namespace

KindListModel::KindListModel(QObject* parent) : QAbstractListModel(parent), m_kind(allKinds) {}

int KindListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 1 + static_cast<int>(m_kinds.size());
}

QVariant KindListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
        return {};
    }
    switch (role) {
    case ValueRole:
        return valueAt(index.row());
    case LabelRole:
    case Qt::DisplayRole:
        return labelAt(index.row());
    case CountRole:
        return tr("%1").arg(countAt(index.row())); // languages group digits in their own ways
    case CountTextRole:
        return tr("Records: %1").arg(countAt(index.row()));
    case SymbolRole:
        return symbolOf(valueAt(index.row()));
    case TintRole:
        return tintOf(valueAt(index.row()));
    default:
        return {};
    }
}

QHash<int, QByteArray> KindListModel::roleNames() const {
    return {{ValueRole, "value"},
            {LabelRole, "label"},
            {CountRole, "count"},
            {CountTextRole, "countText"},
            {SymbolRole, "symbol"},
            {TintRole, "tint"}};
}

void KindListModel::setKinds(const QList<QString>& kinds) {
    if (m_kinds != kinds) {
        beginResetModel();
        m_kinds = kinds;
        endResetModel();
        Q_EMIT kindsChanged();
        Q_EMIT currentChanged();
    }
}

void KindListModel::setCounts(const QList<int>& counts) {
    if (m_counts != counts) {
        m_counts = counts;
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {CountRole, CountTextRole});
        Q_EMIT countsChanged();
    }
}

void KindListModel::setKind(const QString& kind) {
    if (m_kind != kind) {
        m_kind = kind;
        Q_EMIT kindChanged();
        Q_EMIT currentChanged();
    }
}

int KindListModel::currentRow() const {
    if (m_kind == allKinds) {
        return 0;
    }
    const auto place = m_kinds.indexOf(m_kind);
    return place < 0 ? -1 : static_cast<int>(place) + 1;
}

QString KindListModel::currentLabel() const {
    const int row = currentRow();
    return row < 0 ? categoryText(m_kind.toStdString()) : labelAt(row);
}

QString KindListModel::currentSymbol() const {
    return symbolOf(m_kind);
}

int KindListModel::currentTint() const {
    return tintOf(m_kind);
}

QString KindListModel::valueAt(int row) const {
    if (row < 0 || row >= rowCount()) {
        return {};
    }
    return row == 0 ? allKinds : m_kinds.at(row - 1);
}

QList<QString> KindListModel::labels() const {
    QList<QString> labels;
    for (int row = 0; row < rowCount(); ++row) {
        labels.append(labelAt(row));
    }
    return labels;
}

QString KindListModel::labelAt(int row) const {
    return row == 0 ? tr("All categories") : categoryText(m_kinds.at(row - 1).toStdString());
}

int KindListModel::countAt(int row) const {
    return row == 0 ? std::accumulate(m_counts.begin(), m_counts.end(), 0)
                    : m_counts.value(row - 1);
}

} // namespace vasker
