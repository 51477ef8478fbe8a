#pragma once
// The map item: wishes in (records, selection, camera, appearance), scene-graph nodes out. It never
// writes its own properties: what the user wants leaves as a signal.

#include "map/RecordSet.h"
#include "map/records/MarkerFrame.h"
#include "map/scene/MapNode.h"
#include "map/view/Gestures.h"

#include <QQuickItem>
#include <QString>

#include <optional>

namespace vasker {

class MapView : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// What is drawn.
    Q_PROPERTY(vasker::RecordSet records READ records WRITE setRecords NOTIFY recordsChanged)
    /// The id of the selected record; empty or unknown: none.
    Q_PROPERTY(QString selection READ selection WRITE setSelection NOTIFY selectionChanged)
    Q_PROPERTY(vasker::CameraPosition camera READ camera WRITE setCamera NOTIFY cameraChanged)
    Q_PROPERTY(bool dark READ dark WRITE setDark NOTIFY darkChanged)

  public:
    explicit MapView(QQuickItem* parent = nullptr);

    [[nodiscard]] const RecordSet& records() const noexcept { return m_records; }
    [[nodiscard]] const QString& selection() const noexcept { return m_selection; }
    [[nodiscard]] const CameraPosition& camera() const noexcept { return m_camera; }
    [[nodiscard]] bool dark() const noexcept { return m_dark; }
    void setRecords(const RecordSet& records);
    void setSelection(const QString& id);
    void setCamera(const CameraPosition& camera);
    void setDark(bool dark);

  Q_SIGNALS:
    void recordsChanged();
    void selectionChanged();
    void cameraChanged();
    void darkChanged();
    /// The user picked a record on the map; empty: the bare ground.
    void picked(const QString& id);
    /// The user moved the camera.
    void moved(const vasker::CameraPosition& camera);

  protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void updatePolish() override;
    QSGNode* updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData* data) override;

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void touchEvent(QTouchEvent* event) override;
    void hoverMoveEvent(QHoverEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void redraw();
    void refreshTints();
    void refreshSelectedRoute();
    void refreshMarks();
    [[nodiscard]] Camera resolvedCamera() const;
    [[nodiscard]] std::optional<AssetIndex> hit(ScreenPoint point) const;
    [[nodiscard]] QString idOf(std::optional<AssetIndex> asset) const;
    void move(const Camera& camera);

    RecordSet m_records;
    QString m_selection;
    CameraPosition m_camera = canadaOverview;
    bool m_dark = false;

    std::optional<AssetIndex> m_selected;
    std::vector<Rgb> m_tints;      ///< by AssetIndex
    std::vector<Marker> m_markers; ///< in order of precedence
    MarkerLayout m_layout;
    std::optional<DetailLevel> m_layoutLevel; ///< of m_layout; none: to be made anew
    MarkerFrame m_frame;
    MapPicture m_picture;

    std::optional<Drag> m_drag;
    std::optional<Pinch> m_pinch;
    bool m_lastClickHit = false;
};

} // namespace vasker
