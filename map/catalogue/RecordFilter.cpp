#include "map/catalogue/RecordFilter.h"

#include <utility>

namespace vasker {

RecordFilter::RecordFilter(std::shared_ptr<const LoadedRelease> loaded, QObject* parent)
    : QObject(parent), m_loaded(std::move(loaded)), m_kind(QStringLiteral("all")) {
    for (const std::string& kind : m_loaded->index.kinds()) {
        m_kinds.append(QString::fromStdString(kind));
    }
    updateRecords();
    updateCounts();
}

void RecordFilter::setQuery(const QString& query) {
    if (m_query == query) {
        return;
    }
    m_query = query;
    const bool otherRecords = updateRecords();
    const bool otherCounts = updateCounts();
    if (otherRecords) {
        Q_EMIT recordsChanged();
    }
    Q_EMIT queryChanged();
    if (otherCounts) {
        Q_EMIT countsChanged();
    }
    Q_EMIT changed();
}

void RecordFilter::setKind(const QString& kind) {
    if (m_kind == kind) {
        return;
    }
    m_kind = kind;
    const bool otherRecords = updateRecords();
    if (otherRecords) {
        Q_EMIT recordsChanged();
    }
    Q_EMIT kindChanged();
    Q_EMIT changed();
}

bool RecordFilter::updateRecords() {
    std::vector<AssetIndex> filtered =
        m_loaded->index.filtered(m_query.toStdString(), m_kind.toStdString());
    if (m_filtered && *m_filtered == filtered) {
        return false;
    }
    m_filtered = std::make_shared<const std::vector<AssetIndex>>(std::move(filtered));
    return true;
}

bool RecordFilter::updateCounts() {
    QList<int> counts;
    for (const std::size_t count : m_loaded->index.counts(m_query.toStdString())) {
        counts.append(static_cast<int>(count));
    }
    return std::exchange(m_counts, counts) != counts;
}

} // namespace vasker
