#pragma once
// The map without sight and without a pointer: goes from record to record by keys, and says which
// one it is, how far and in which direction; says where the map is after it was moved by keys.
//
// It hears the keys of the map before the map does, and takes these: Ctrl with an arrow key, R and
// Shift+R, and Enter and Space while it stands at a record.

#include "map/records/NearRecords.h"
#include "map/view/MapView.h"

#include <QObject>
#include <QTimer>

#include <optional>
#include <vector>

namespace vasker {

class MapExplorer : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vasker::MapView* map READ map WRITE setMap REQUIRED)

  public:
    explicit MapExplorer(QObject* parent = nullptr);

    [[nodiscard]] MapView* map() const noexcept { return m_map; }
    /// Set once; `map` outlives this object.
    void setMap(MapView* map);

  Q_SIGNALS:
    /// One sentence for a screen reader.
    void spoken(const QString& text);
    /// The camera is to go there.
    void moved(const vasker::CameraPosition& camera);
    /// The record that it stands at is to be opened.
    void picked(const QString& id);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// Whether the key is taken.
    bool handleKey(const QKeyEvent& key);
    void go(ScreenDirection direction);
    void step(int by);
    void stand(const NearRecord& near);
    void leave();
    void followView();
    void tellCenter();

    MapView* m_map = nullptr;
    std::optional<AssetIndex> m_current;
    std::vector<NearRecord> m_tour; ///< the records in view; empty: to be found
    std::size_t m_place = 0;        ///< in the tour
    bool m_isGoing = false;         ///< the camera moves because of a step
    bool m_isKeyMove = false;       ///< the last that moved the map was a key
    QTimer m_rest;                  ///< runs while the map is moved by keys
};

} // namespace vasker
