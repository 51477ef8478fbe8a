#pragma once
// The map item: wishes in (records, selection, camera, appearance), scene-graph nodes out. It never
// writes what others own: what the user wants leaves as a signal.

#include "map/basemap/TilePyramid.h"
#include "map/records/MapRecords.h"
#include "map/records/RecordSet.h"
#include "map/scene/MapNode.h"
#include "map/view/Gestures.h"
#include "map/view/MapMotion.h"

#include <QElapsedTimer>
#include <QQuickItem>
#include <QString>
#include <QTimer>
#include <QVariantList>

#include <optional>

class QNativeGestureEvent;

namespace vasker {

class MapView : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// What is drawn.
    Q_PROPERTY(vasker::RecordSet records READ records WRITE setRecords NOTIFY recordsChanged)
    /// The id of the selected record; empty or unknown: none.
    Q_PROPERTY(QString selection READ selection WRITE setSelection NOTIFY selectionChanged)
    Q_PROPERTY(vasker::CameraPosition camera READ camera WRITE setCamera NOTIFY cameraChanged)
    /// The id of the record that is pointed at somewhere, here or in a list; empty or unknown:
    /// none.
    Q_PROPERTY(QString hovered READ hovered WRITE setHovered NOTIFY hoveredChanged)
    /// The stored choice: "satellite", "hybrid", anything else the drawn map.
    Q_PROPERTY(QString basemap READ basemap WRITE setBasemap NOTIFY lookChanged)
    Q_PROPERTY(bool dark READ dark WRITE setDark NOTIFY lookChanged)
    /// Whether the ground is asked to be photographs.
    Q_PROPERTY(bool showsImagery READ showsImagery NOTIFY lookChanged)
    /// The TileLibrary that tiles come from; it outlives the item. Null: there are no tiles.
    Q_PROPERTY(QObject* tiles READ tiles WRITE setTiles NOTIFY tilesChanged)
    /// Whom to thank for what is in view: maps of "text" and "address", the latter may be empty.
    Q_PROPERTY(QVariantList attribution READ attribution NOTIFY attributionChanged)
    /// Whether photographs are asked for and missing somewhere in view.
    Q_PROPERTY(bool lacksImagery READ lacksImagery NOTIFY attributionChanged)
    /// The id of the record under the pointer; empty: none.
    Q_PROPERTY(QString pointed READ pointed NOTIFY pointedChanged)
    /// Its name, its category and period, and the top of its mark on the item (of a line: where the
    /// pointer met it).
    Q_PROPERTY(QString pointedName READ pointedName NOTIFY pointedChanged)
    Q_PROPERTY(QString pointedCaption READ pointedCaption NOTIFY pointedChanged)
    Q_PROPERTY(QPointF pointedPlace READ pointedPlace NOTIFY pointedChanged)
    /// The margins that something else covers, in logical pixels.
    Q_PROPERTY(
        double coveredBelow READ coveredBelow WRITE setCoveredBelow NOTIFY coveredBelowChanged)
    Q_PROPERTY(
        double coveredRight READ coveredRight WRITE setCoveredRight NOTIFY coveredRightChanged)
    /// How large the desktop wants its texts: 1 is the usual.
    Q_PROPERTY(double textScale READ textScale WRITE setTextScale NOTIFY textScaleChanged)
    /// Whether the camera is always at its end at once.
    Q_PROPERTY(
        bool reducedMotion READ reducedMotion WRITE setReducedMotion NOTIFY reducedMotionChanged)

  public:
    explicit MapView(QQuickItem* parent = nullptr);

    ~MapView() override;

    [[nodiscard]] const RecordSet& records() const noexcept { return m_mapRecords.records(); }
    [[nodiscard]] const QString& selection() const noexcept { return m_selection; }
    [[nodiscard]] const CameraPosition& camera() const noexcept { return m_camera; }
    [[nodiscard]] const QString& hovered() const noexcept { return m_hovered; }
    [[nodiscard]] const QString& basemap() const noexcept { return m_basemap; }
    [[nodiscard]] bool dark() const noexcept { return m_dark; }
    [[nodiscard]] bool showsImagery() const noexcept;
    [[nodiscard]] QObject* tiles() const noexcept;
    [[nodiscard]] const QVariantList& attribution() const noexcept { return m_attribution; }
    [[nodiscard]] bool lacksImagery() const noexcept { return m_lacksImagery; }
    [[nodiscard]] QString pointed() const { return m_mapRecords.idOf(m_pointed); }
    [[nodiscard]] QString pointedName() const;
    [[nodiscard]] QString pointedCaption() const;
    [[nodiscard]] QPointF pointedPlace() const noexcept { return m_pointedPlace; }
    void setRecords(const RecordSet& records);
    void setSelection(const QString& id);
    void setCamera(const CameraPosition& camera);
    void setHovered(const QString& id);
    void setBasemap(const QString& basemap);
    void setDark(bool dark);
    void setTiles(QObject* tiles);
    [[nodiscard]] double coveredBelow() const noexcept { return m_coveredBelow; }
    [[nodiscard]] double coveredRight() const noexcept { return m_coveredRight; }
    [[nodiscard]] double textScale() const noexcept { return m_textScale; }
    void setTextScale(double scale);
    [[nodiscard]] bool reducedMotion() const noexcept { return m_motion.isReduced(); }
    void setCoveredBelow(double pixels);
    void setCoveredRight(double pixels);
    void setReducedMotion(bool reduced);

    /// The camera in this item as it is.
    [[nodiscard]] Camera resolvedCamera() const;
    /// Whether the last picture showed all that is asked for.
    [[nodiscard]] bool isComplete() const;
    /// How routes and dots are drawn. By itself the map chooses what is quicker on this machine.
    void setDots(Dots dots);
    /// Whether the camera is on its way by itself.
    [[nodiscard]] bool isMoving() const { return m_motion.state() == MapMotion::Running; }
    /// Moves of the camera as a control asks for them, smoothly.
    Q_INVOKABLE void zoomIn();
    Q_INVOKABLE void zoomOut();
    Q_INVOKABLE void setUpright();

  Q_SIGNALS:
    void recordsChanged();
    void selectionChanged();
    void cameraChanged();
    void hoveredChanged();
    void lookChanged();
    void tilesChanged();
    void attributionChanged();
    void pointedChanged();
    void coveredBelowChanged();
    void coveredRightChanged();
    void reducedMotionChanged();
    void textScaleChanged();
    /// resolvedCamera() is another one.
    void viewChanged();
    /// The user picked a record on the map; empty: the bare ground.
    void picked(const QString& id);
    /// The user picked a place where several records stand that no zoom separates.
    void choiceOffered(const vasker::RecordSet& choice, QPointF place);
    /// The user asked what can be done with the record at `place`.
    void menuWanted(const QString& id, QPointF place);
    /// The user moved the camera.
    void moved(const vasker::CameraPosition& camera);
    /// The user asked for the overview.
    void overviewWanted();

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
    void hoverLeaveEvent(QHoverEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void redraw();
    void redrawSoon();
    void refreshLook();
    void lookAtGround(const Camera& camera);
    void publishAttribution();
    [[nodiscard]] std::optional<AssetIndex> hit(ScreenPoint point, double reach) const;
    void setPointed(std::optional<AssetIndex> record, ScreenPoint pointer);
    /// Whether a control stands over the map at `point`.
    [[nodiscard]] bool isCovered(ScreenPoint point) const;
    void move(const Camera& camera);
    void coverChanged();
    void dragTo(ScreenPoint point, double seconds);
    void endDrag(double seconds);
    /// After a turn by hand: what is nearly upright is set upright.
    void settle();
    /// A click or a touch that reaches so far; true if it hit a record.
    bool pick(ScreenPoint point, double reach);
    /// Asks for the menu of the record within `reach`; does nothing where there is none.
    void offerMenu(ScreenPoint point, double reach);
    void tap(ScreenPoint point, qint64 milliseconds);
    void nativeGesture(const QNativeGestureEvent& gesture);

    struct Tap {
        ScreenPoint point;
        qint64 milliseconds;
        bool hit;
    };

    QString m_selection;
    QString m_hovered;
    QString m_basemap;
    CameraPosition m_camera = canadaOverview;
    bool m_dark = false;

    double m_textScale = 1;
    std::optional<AssetIndex> m_pointed;
    QPointF m_pointedPlace;

    MapRecords m_mapRecords;
    MapLabels m_names;
    TileLibrary* m_tiles = nullptr;
    std::unique_ptr<TilePyramid> m_store; ///< null without m_tiles
    Dots m_dots = Dots::painted;
    bool m_choosesDots = true; ///< when the renderer is known
    MapFrame m_picture;
    QVariantList m_attribution;
    bool m_lacksImagery = false;
    QTimer m_rest;         ///< runs while the camera is being moved
    QElapsedTimer m_clock; ///< of fades

    double m_coveredBelow = 0;
    double m_coveredRight = 0;
    MapMotion m_motion;
    std::optional<CameraPose> m_movedTo; ///< what moved() said last
    std::optional<Drag> m_drag;
    DragTrail m_trail; ///< of m_drag
    std::optional<RotateDrag> m_turn;
    std::optional<Pinch> m_pinch;
    qsizetype m_fingers = 0;
    std::optional<Tap> m_lastTap;
    bool m_lastClickHit = false;
};

} // namespace vasker
