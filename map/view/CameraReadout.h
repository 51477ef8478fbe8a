#pragma once
// What the controls on the map show of its camera: the compass, the scale bar, whether there is
// more to zoom.

#include "map/view/MapView.h"

#include <QLocale>
#include <QPointer>

namespace vasker {

/// As a person reads it: whole metres below a kilometre, else kilometres.
[[nodiscard]] QString distanceText(double metres, const QLocale& locale);

class CameraReadout : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// Set once.
    Q_PROPERTY(vasker::MapView* map READ map WRITE setMap REQUIRED)
    /// Degrees.
    Q_PROPERTY(double bearing READ bearing NOTIFY changed)
    Q_PROPERTY(double pitch READ pitch NOTIFY changed)
    Q_PROPERTY(bool upright READ isUpright NOTIFY changed)
    Q_PROPERTY(bool nearest READ isNearest NOTIFY changed)
    Q_PROPERTY(bool farthest READ isFarthest NOTIFY changed)
    /// Logical pixels.
    Q_PROPERTY(double barLength READ barLength NOTIFY changed)
    Q_PROPERTY(QString barText READ barText NOTIFY changed)

  public:
    explicit CameraReadout(QObject* parent = nullptr);

    [[nodiscard]] MapView* map() const { return m_map; }
    void setMap(MapView* map);
    [[nodiscard]] double bearing() const noexcept { return m_shown.bearing; }
    [[nodiscard]] double pitch() const noexcept { return m_shown.pitch; }
    [[nodiscard]] bool isUpright() const noexcept { return bearing() == 0 && pitch() == 0; }
    [[nodiscard]] bool isNearest() const noexcept { return m_shown.nearest; }
    [[nodiscard]] bool isFarthest() const noexcept { return m_shown.farthest; }
    [[nodiscard]] double barLength() const noexcept { return m_shown.barLength; }
    [[nodiscard]] const QString& barText() const noexcept { return m_shown.barText; }

  Q_SIGNALS:
    void changed();

  private:
    void refresh();

    struct Shown {
        double bearing = 0;
        double pitch = 0;
        bool nearest = false;
        bool farthest = false;
        double barLength = 0;
        QString barText;
        friend bool operator==(const Shown&, const Shown&) = default;
    };

    QPointer<MapView> m_map;
    QLocale m_locale;
    Shown m_shown;
};

} // namespace vasker
