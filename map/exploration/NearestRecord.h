#pragma once
// Which record is nearest to a map that shows none.

#include "map/view/MapView.h"

#include <QObject>
#include <QTimer>

#include <optional>

namespace vasker {

class NearestRecord : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vasker::MapView* map READ map WRITE setMap REQUIRED)
    /// Name, distance and direction; empty while a record is in view, or none is shown anywhere.
    Q_PROPERTY(QString text READ text NOTIFY changed)
    /// Its direction on the screen, degrees clockwise from up.
    Q_PROPERTY(double degrees READ degrees NOTIFY changed)

  public:
    explicit NearestRecord(QObject* parent = nullptr);

    [[nodiscard]] MapView* map() const noexcept { return m_map; }
    /// Set once; `map` outlives this object.
    void setMap(MapView* map);
    [[nodiscard]] const QString& text() const noexcept { return m_text; }
    [[nodiscard]] double degrees() const noexcept { return m_degrees; }

    /// Has the camera frame it; does nothing without a text.
    Q_INVOKABLE void go();

  Q_SIGNALS:
    void changed();
    /// The camera is to go there.
    void moved(const vasker::CameraPosition& camera);

  private:
    void refresh();

    MapView* m_map = nullptr;
    QTimer m_rest; ///< runs while the map moves
    std::optional<AssetIndex> m_record;
    QString m_text;
    double m_degrees = 0;
};

} // namespace vasker
