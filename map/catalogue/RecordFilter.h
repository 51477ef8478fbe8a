#pragma once
// Which records of a release are shown: by a search text and by a kind. What follows from the two
// is computed once for a change, and announced when all of it is in place.

#include "map/records/RecordSet.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QtQmlIntegration>

#include <cstdint>
#include <memory>
#include <vector>

namespace vasker {

class RecordFilter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the workspace")
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    Q_PROPERTY(QString kind READ kind WRITE setKind NOTIFY kindChanged)
    Q_PROPERTY(vasker::RecordSet records READ records NOTIFY recordsChanged)
    Q_PROPERTY(QList<QString> kinds READ kinds CONSTANT)
    Q_PROPERTY(QList<int> counts READ counts NOTIFY countsChanged)

  public:
    /// `loaded` is not null.
    explicit RecordFilter(std::shared_ptr<const LoadedRelease> loaded, QObject* parent = nullptr);

    /// The search text; not trimmed.
    [[nodiscard]] const QString& query() const noexcept { return m_query; }
    void setQuery(const QString& query);
    /// The kind to show, or "all".
    [[nodiscard]] const QString& kind() const noexcept { return m_kind; }
    void setKind(const QString& kind);

    /// The records that pass both, in name order.
    [[nodiscard]] const std::vector<AssetIndex>& filtered() const noexcept { return *m_filtered; }
    [[nodiscard]] RecordSet records() const { return {m_loaded, m_filtered}; }
    /// The kinds of all records, each once, in code-point order.
    [[nodiscard]] const QList<QString>& kinds() const noexcept { return m_kinds; }
    /// How many records of each of the kinds pass `query`, whatever `kind` is.
    [[nodiscard]] const QList<int>& counts() const noexcept { return m_counts; }

  Q_SIGNALS:
    /// Comes first: what is slow begins with the records.
    void recordsChanged();
    void queryChanged();
    void kindChanged();
    void countsChanged();
    /// Comes last, once for all that changed together.
    void changed();

  private:
    /// Finds what matches the query, and counts it by kind.
    void search();
    /// Returns whether there are others than before.
    bool updateRecords();

    std::shared_ptr<const LoadedRelease> m_loaded;
    QString m_query;
    QString m_kind;
    std::vector<std::uint32_t> m_matches; ///< of m_query, as ReleaseIndex ranks them
    QList<QString> m_kinds;
    QList<int> m_counts;
    std::shared_ptr<const std::vector<AssetIndex>> m_filtered;
};

} // namespace vasker
