#include "map/catalogue/RecordListModel.h"

#include "map/catalogue/FoundText.h"
#include "map/catalogue/NameMatch.h"
#include "platform/ui/TypeAhead.h"
#include "presentation/RecordText.h"
#include "presentation/Symbols.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace vasker {

namespace {

constexpr std::string_view unitLabel = "Reported unit";

QString unit(const OpenMapRelease::Asset& asset) {
    const auto fact = std::ranges::find(asset.facts, unitLabel, &OpenMapRelease::Fact::label);
    return fact == asset.facts.end() ? QString() : lineText(fact->value);
}

} // namespace

RecordListModel::RecordListModel(QObject* parent) : QAbstractListModel(parent) {}

int RecordListModel::rowCount(const QModelIndex& parent) const {
    const bool isList = !parent.isValid() && m_records.filtered;
    return isList ? static_cast<int>(m_records.filtered->size()) : 0;
}

QVariant RecordListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
        return {};
    }
    const OpenMapRelease::Asset& record = asset(index.row());
    switch (role) {
    case IdRole:
        return toQString(record.id);
    case NameRole:
    case Qt::DisplayRole:
        return nameText(record.name);
    case MarkupRole:
        return markup(record);
    case UnitRole:
        return unit(record);
    case CategoryRole:
        return categoryLine(record);
    case SymbolRole:
        return toQString(symbol(record.kind));
    case TintRole:
        return static_cast<int>(color(record.kind));
    case FoundRole:
        return QVariant::fromValue(
            FoundText::of(m_records.loaded->index, recordIn(index.row()), m_foldedQuery));
    case AccessibleRole:
        return tr("%1, %2, source period %3")
            .arg(nameText(record.name), categoryText(record.kind), lineText(record.asOf));
    default:
        return {};
    }
}

QHash<int, QByteArray> RecordListModel::roleNames() const {
    return {{IdRole, "recordId"},
            {NameRole, "name"},
            {MarkupRole, "markup"},
            {UnitRole, "unit"},
            {CategoryRole, "category"},
            {SymbolRole, "symbol"},
            {TintRole, "tint"},
            {FoundRole, "found"},
            {AccessibleRole, "accessibleText"}};
}

void RecordListModel::setFilter(RecordFilter* filter) {
    if (m_filter == filter) {
        return;
    }
    if (m_filter != nullptr) {
        m_filter->disconnect(this);
    }
    m_filter = filter;
    if (filter != nullptr) {
        connect(filter, &RecordFilter::changed, this, [this, filter] {
            show(filter->records(), filter->query());
        });
        show(filter->records(), filter->query());
    }
    Q_EMIT filterChanged();
}

void RecordListModel::show(const RecordSet& records, const QString& query) {
    const bool isOtherQuery = std::exchange(m_query, query) != query;
    if (m_records != records) {
        replace(records);
    } else if (isOtherQuery) {
        foldQuery();
        if (!isEmpty()) {
            Q_EMIT dataChanged(index(0), index(rowCount() - 1), {MarkupRole, FoundRole});
        }
    }
    if (isOtherQuery) {
        Q_EMIT queryChanged();
    }
}

void RecordListModel::replace(const RecordSet& records) {
    Q_EMIT aboutToBeReplaced();
    if (isEmpty() || m_records.loaded != records.loaded || records.filtered->empty()) {
        beginResetModel();
        m_records = records;
        foldQuery();
        endResetModel();
    } else {
        resize(*records.filtered);
        m_records = records;
        foldQuery();
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    }
    m_selectedRow = rowOf(m_selection);
    Q_EMIT replaced();
    Q_EMIT recordsChanged();
    Q_EMIT selectedRowChanged();
}

void RecordListModel::setSelection(const QString& selection) {
    if (m_selection != selection) {
        m_selection = selection;
        Q_EMIT selectionChanged();
        updateSelectedRow();
    }
}

QString RecordListModel::countText(const RecordSet& records) {
    const bool isLoaded = records.loaded != nullptr;
    const std::size_t total = isLoaded ? records.loaded->index.release().assets.size() : 0;
    const int shown = isLoaded ? static_cast<int>(records.filtered->size()) : 0;
    //: %n: how many records are shown, %1: how many there are
    return tr("%n of %1 records", nullptr, shown).arg(total);
}

QString RecordListModel::emptyTitle(const QString& query) {
    return query.isEmpty() ? tr("No results") : tr("No results for “%1”").arg(query);
}

QString RecordListModel::idAt(int row) const {
    return row < 0 || row >= rowCount() ? QString() : toQString(asset(row).id);
}

int RecordListModel::rowOf(const QString& id) const {
    if (!m_records.loaded || id.isEmpty()) {
        return -1;
    }
    const auto record = m_records.loaded->index.find(id.toStdString());
    if (!record) {
        return -1;
    }
    const auto& filtered = *m_records.filtered;
    const auto place = std::ranges::find(filtered, *record);
    return place == filtered.end() ? -1 : static_cast<int>(place - filtered.begin());
}

int RecordListModel::rowBeginning(const QString& text) const {
    const QString wanted = TypeAhead::compared(text);
    for (int row = 0; row < rowCount(); ++row) {
        if (TypeAhead::compared(toQString(asset(row).name)).startsWith(wanted)) {
            return row;
        }
    }
    return -1;
}

AssetIndex RecordListModel::recordIn(int row) const {
    return (*m_records.filtered)[static_cast<std::size_t>(row)];
}

const OpenMapRelease::Asset& RecordListModel::asset(int row) const {
    return m_records.asset(recordIn(row));
}

QString RecordListModel::markup(const OpenMapRelease::Asset& asset) const {
    if (m_foldedQuery.empty()) {
        return {};
    }
    const QString name = nameText(asset.name);
    const auto part = matchedPart(name, m_foldedQuery, m_records.loaded->index.locale());
    return part ? nameMarkup(name, *part) : QString();
}

void RecordListModel::resize(const std::vector<AssetIndex>& wanted) {
    const int before = rowCount();
    const auto after = static_cast<int>(wanted.size());
    auto rows = std::make_shared<std::vector<AssetIndex>>(*m_records.filtered);
    if (after < before) {
        beginRemoveRows({}, after, before - 1);
        rows->resize(wanted.size());
        m_records.filtered = std::move(rows);
        endRemoveRows();
    } else if (after > before) {
        beginInsertRows({}, before, after - 1);
        rows->insert(rows->end(), wanted.begin() + before, wanted.end());
        m_records.filtered = std::move(rows);
        endInsertRows();
    }
}

void RecordListModel::foldQuery() {
    m_foldedQuery = m_records.loaded
                        ? folded(m_query.toStdString(), m_records.loaded->index.locale())
                        : std::string();
}

void RecordListModel::updateSelectedRow() {
    const int row = rowOf(m_selection);
    if (m_selectedRow != row) {
        m_selectedRow = row;
        Q_EMIT selectedRowChanged();
    }
}

} // namespace vasker
