#pragma once
// The record under the pointer: the text and the place of its card.

#include "map/records/MapRecords.h"

#include <QObject>
#include <QPointF>
#include <QString>
#include <QtQmlIntegration>

#include <optional>

namespace vasker {

class MapHover : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Each map has its own.")
    /// The record's id; empty: none is under the pointer.
    Q_PROPERTY(QString recordId READ recordId NOTIFY changed)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    /// Its category and period.
    Q_PROPERTY(QString caption READ caption NOTIFY changed)
    /// The top of its marker on the map; of a line, where the pointer met it.
    Q_PROPERTY(QPointF place READ place NOTIFY changed)

  public:
    /// `records` outlives this object.
    explicit MapHover(const MapRecords& records, QObject* parent = nullptr)
        : QObject(parent), m_records(records) {}

    [[nodiscard]] QString recordId() const { return m_records.idOf(m_record); }
    [[nodiscard]] QString name() const;
    [[nodiscard]] QString caption() const;
    [[nodiscard]] QPointF place() const noexcept { return m_place; }
    [[nodiscard]] std::optional<AssetIndex> record() const noexcept { return m_record; }

    /// The pointer at `pointer` is over `record` now.
    void setRecord(std::optional<AssetIndex> record, ScreenPoint pointer, const Camera& camera);
    /// Keys have gone to `record` at `point`: it stays when the pointer rests elsewhere.
    void hold(AssetIndex record, ScreenPoint point, const Camera& camera);
    [[nodiscard]] bool isHeld() const noexcept { return m_isHeld; }
    void clear();

  Q_SIGNALS:
    void changed();

  private:
    const MapRecords& m_records;
    std::optional<AssetIndex> m_record;
    QPointF m_place;
    bool m_isHeld = false;
};

} // namespace vasker
