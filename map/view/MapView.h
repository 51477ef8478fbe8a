#pragma once
// The map item: wishes in (records, selection, camera, appearance), scene-graph nodes out. It never
// writes its own properties: what the user wants leaves as a signal.

#include "map/RecordSet.h"

#include <QQuickItem>
#include <QString>

namespace vasker {

class MapView : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vasker::RecordSet records MEMBER m_records NOTIFY recordsChanged)
    Q_PROPERTY(QString selection MEMBER m_selection NOTIFY selectionChanged)
    Q_PROPERTY(vasker::CameraPosition camera MEMBER m_camera NOTIFY cameraChanged)
    Q_PROPERTY(bool dark MEMBER m_dark NOTIFY darkChanged)

  public:
    explicit MapView(QQuickItem* parent = nullptr);

  Q_SIGNALS:
    void recordsChanged();
    void selectionChanged();
    void cameraChanged();
    void darkChanged();
    /// The user picked a record on the map; empty: the bare ground.
    void picked(const QString& id);
    /// The user moved the camera.
    void moved(const vasker::CameraPosition& camera);

  private:
    RecordSet m_records;
    QString m_selection;
    CameraPosition m_camera = canadaOverview;
    bool m_dark = false;
};

} // namespace vasker
