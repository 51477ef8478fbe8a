#pragma once
// The map item: properties say what it shows, signals what the user does, and its frames go to the
// scene graph. It never changes what others own.

#include "map/frame/MapComposer.h"
#include "map/input/InputItem.h"
#include "map/view/MapInteraction.h"
#include "map/view/MapStatus.h"

#include <QElapsedTimer>
#include <QQmlListProperty>
#include <QString>

namespace vasker {

// Qualified, because the tools for QML find the base by its full name only.
class MapView : public vasker::InputItem {
    Q_OBJECT
    QML_ELEMENT
    /// What is drawn.
    Q_PROPERTY(vasker::RecordSet records READ records WRITE setRecords NOTIFY recordsChanged)
    /// The id of the selected record; empty or unknown: none.
    Q_PROPERTY(QString selection READ selection WRITE setSelection NOTIFY selectionChanged)
    /// The id of the record to highlight, hovered here or in a list; empty or unknown: none.
    Q_PROPERTY(QString hovered READ hovered WRITE setHovered NOTIFY hoveredChanged)
    Q_PROPERTY(vasker::CameraPosition camera READ camera WRITE setCamera NOTIFY cameraChanged)
    /// The stored choice: "satellite", "hybrid", anything else the drawn map.
    Q_PROPERTY(QString basemap MEMBER m_basemap NOTIFY appearanceChanged)
    Q_PROPERTY(bool dark MEMBER m_dark NOTIFY appearanceChanged)
    Q_PROPERTY(bool highContrast MEMBER m_highContrast NOTIFY appearanceChanged)
    /// The TileLibrary that tiles come from; it outlives the item. Null: there are no tiles.
    Q_PROPERTY(QObject* tiles READ tiles WRITE setTiles NOTIFY tilesChanged)
    /// The record under the pointer.
    Q_PROPERTY(vasker::MapHover* hover READ hover CONSTANT)
    Q_PROPERTY(vasker::MapStatus* status READ status CONSTANT)
    /// The controls over the map: labels keep clear of them, and nothing below them is hovered.
    Q_PROPERTY(QQmlListProperty<QQuickItem> controls READ controls)
    /// The margins that something else covers, in logical pixels.
    Q_PROPERTY(double coveredBelow MEMBER m_coveredBelow NOTIFY coverChanged)
    Q_PROPERTY(double coveredRight MEMBER m_coveredRight NOTIFY coverChanged)
    Q_PROPERTY(double coveredLeft MEMBER m_coveredLeft NOTIFY coverChanged)
    /// The desktop's text scale; 1 is the usual size.
    Q_PROPERTY(double textScale MEMBER m_textScale NOTIFY appearanceChanged)
    /// Whether the camera is always at its end at once.
    Q_PROPERTY(bool reducedMotion MEMBER m_reducedMotion NOTIFY motionChanged)

  public:
    explicit MapView(QQuickItem* parent = nullptr);

    [[nodiscard]] const RecordSet& records() const noexcept {
        return m_composer.records().records();
    }
    void setRecords(const RecordSet& records);
    [[nodiscard]] const QString& selection() const noexcept {
        return m_composer.records().selection();
    }
    void setSelection(const QString& id);
    [[nodiscard]] const QString& hovered() const noexcept { return m_composer.records().hovered(); }
    void setHovered(const QString& id);
    [[nodiscard]] const CameraPosition& camera() const noexcept { return m_camera; }
    void setCamera(const CameraPosition& camera);
    [[nodiscard]] QObject* tiles() const noexcept { return m_composer.tiles(); }
    void setTiles(QObject* tiles);
    [[nodiscard]] MapHover* hover() noexcept { return &m_interaction.hover(); }
    [[nodiscard]] MapStatus* status() noexcept { return &m_status; }
    [[nodiscard]] MapControls::List controls() { return m_interaction.controls().listFor(this); }

    /// The camera in this item as it is.
    [[nodiscard]] Camera resolvedCamera() const;
    /// Whether the last frame showed all that is asked for.
    [[nodiscard]] bool isComplete() const noexcept { return m_frame.isComplete; }
    /// The places in and around the view whose labels the last frame chose from.
    [[nodiscard]] const std::vector<PlaceLabel>& places() const noexcept { return m_frame.places; }
    /// Whether the camera is on its way by itself.
    [[nodiscard]] bool isMoving() const { return m_interaction.navigator().isMoving(); }
    /// How routes and dots are drawn. By itself the map chooses what is quicker on this machine.
    void setDrawing(RecordDrawing drawing);
    /// Moves of the camera that a control asks for, over time.
    Q_INVOKABLE void zoomIn() { m_interaction.navigator().zoomBy(2); }
    Q_INVOKABLE void zoomOut() { m_interaction.navigator().zoomBy(0.5); }
    Q_INVOKABLE void resetNorth() { m_interaction.navigator().resetNorth(); }

  Q_SIGNALS:
    void recordsChanged();
    void selectionChanged();
    void hoveredChanged();
    void cameraChanged();
    void appearanceChanged();
    void tilesChanged();
    void coverChanged();
    void motionChanged();
    /// resolvedCamera() is another one.
    void viewChanged();
    /// The user picked a record on the map; empty: the bare map.
    void picked(const QString& id);
    /// The user picked a place where several records stand that no zoom separates.
    void choiceOffered(const vasker::RecordSet& choice, QPointF place);
    /// The user asked what can be done with the record at `place`.
    void menuRequested(const QString& id, QPointF place);
    /// The user moved the camera.
    void moved(const vasker::CameraPosition& camera);
    /// The user asked for the overview.
    void overviewRequested();

  protected:
    void componentComplete() override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void updatePolish() override;
    QSGNode* updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData* data) override;
    bool handle(const MapEvent& event) override { return m_interaction.handle(event); }
    void hoverAt(std::optional<QPointF> place) override { m_interaction.hoverAt(place); }

  private:
    void redraw();
    void refreshAppearance();
    void changeView();

    MapComposer m_composer;
    MapState m_state;
    MapFrame m_frame;
    MapInteraction m_interaction;
    MapStatus m_status;
    QString m_basemap;
    bool m_dark = false;
    bool m_highContrast = false;
    CameraPosition m_camera = canadaOverview;
    double m_coveredBelow = 0;
    double m_coveredRight = 0;
    double m_coveredLeft = 0;
    double m_textScale = 1;
    bool m_reducedMotion = false;
    bool m_choosesDrawing = true; ///< when the renderer is known
    QElapsedTimer m_clock;        ///< of fades
};

} // namespace vasker
