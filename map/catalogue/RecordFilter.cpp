#include "map/catalogue/RecordFilter.h"

#include <utility>

namespace vasker {

RecordFilter::RecordFilter(std::shared_ptr<const LoadedRelease> loaded, QObject* parent)
    : QObject(parent), m_loaded(std::move(loaded)), m_kind(QStringLiteral("all")) {
    for (const std::string& kind : m_loaded->index.kinds()) {
        m_kinds.append(QString::fromStdString(kind));
    }
    search();
    updateRecords();
}

void RecordFilter::setQuery(const QString& query) {
    if (m_query == query) {
        return;
    }
    m_query = query;
    const QList<int> counts = m_counts;
    search();
    if (updateRecords()) {
        Q_EMIT recordsChanged();
    }
    Q_EMIT queryChanged();
    if (counts != m_counts) {
        Q_EMIT countsChanged();
    }
    Q_EMIT changed();
}

void RecordFilter::setKind(const QString& kind) {
    if (m_kind == kind) {
        return;
    }
    m_kind = kind;
    if (updateRecords()) {
        Q_EMIT recordsChanged();
    }
    Q_EMIT kindChanged();
    Q_EMIT changed();
}

void RecordFilter::search() {
    m_matches = m_loaded->index.matchingRanks(m_query.toStdString());
    m_counts.clear();
    for (const std::size_t count : m_loaded->index.counts(m_matches)) {
        m_counts.append(static_cast<int>(count));
    }
}

bool RecordFilter::updateRecords() {
    std::vector<AssetIndex> filtered = m_loaded->index.ofKind(m_matches, m_kind.toStdString());
    if (m_filtered && *m_filtered == filtered) {
        return false;
    }
    m_filtered = std::make_shared<const std::vector<AssetIndex>>(std::move(filtered));
    return true;
}

} // namespace vasker
