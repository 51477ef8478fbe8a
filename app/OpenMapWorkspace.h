#pragma once
// The state of one window's workspace: what is picked, what the map shows, and what follows from
// that. Which records are shown is up to its RecordFilter, which sheet is to the window's
// SheetStack. User-interface thread only.

#include "app/sheets/SheetStack.h"
#include "detail/ReleaseRecord.h"
#include "map/catalogue/RecordFilter.h"
#include "map/geometry/Camera.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QtQmlIntegration>

#include <memory>
#include <optional>
#include <vector>

namespace vasker {

class Preferences;

class OpenMapWorkspace : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the root view when the release is there")
    Q_PROPERTY(vasker::RecordFilter* filter READ filter CONSTANT)
    Q_PROPERTY(QString selection READ selection WRITE setSelection NOTIFY selectionChanged)
    Q_PROPERTY(QString inspector READ inspector NOTIFY inspectorChanged)
    Q_PROPERTY(vasker::ReleaseRecord inspected READ inspected NOTIFY inspectorChanged)
    Q_PROPERTY(vasker::ReleaseRecord whole READ whole CONSTANT)
    Q_PROPERTY(QString packagedFile READ packagedFile CONSTANT)
    Q_PROPERTY(QString basemap READ basemap WRITE setBasemap NOTIFY basemapChanged)
    Q_PROPERTY(vasker::CameraPosition camera READ camera WRITE setCamera NOTIFY cameraChanged)

  public:
    using Sheet = SheetStack::Sheet;

    /// `loaded` is not null; `preferences` and `sheets` outlive the workspace. `packagedFile` is
    /// the path of the file that the release was read from, `digest` its SHA-256; empty: there is
    /// none to hand out.
    OpenMapWorkspace(std::shared_ptr<const LoadedRelease> loaded,
                     Preferences& preferences,
                     SheetStack& sheets,
                     QString packagedFile = {},
                     QString digest = {},
                     QObject* parent = nullptr);

    [[nodiscard]] const OpenMapRelease& release() const noexcept {
        return m_loaded->index.release();
    }

    [[nodiscard]] RecordFilter* filter() noexcept { return &m_filter; }
    [[nodiscard]] const RecordFilter& filter() const noexcept { return m_filter; }
    [[nodiscard]] const QString& query() const noexcept { return m_filter.query(); }
    void setQuery(const QString& query) { m_filter.setQuery(query); }
    [[nodiscard]] const QString& kind() const noexcept { return m_filter.kind(); }
    void setKind(const QString& kind) { m_filter.setKind(kind); }
    [[nodiscard]] const std::vector<AssetIndex>& filtered() const { return m_filter.filtered(); }
    [[nodiscard]] const QList<QString>& kinds() const noexcept { return m_filter.kinds(); }

    /// The id of the picked record; empty: none. A new value frames its record and opens the
    /// inspector on it, after the records sheet has closed if that is up. An id that no record has
    /// does neither.
    [[nodiscard]] const QString& selection() const noexcept { return m_selection; }
    void setSelection(const QString& selection);
    /// The same, picked on the map.
    Q_INVOKABLE void pickOnMap(const QString& selection);

    /// The id of the record in the inspector; empty while that is closed or to close.
    [[nodiscard]] QString inspector() const;
    /// The id of the record that waits for the records sheet to close; empty: none.
    [[nodiscard]] QString pendingInspector() const { return idOf(m_pendingInspector); }
    [[nodiscard]] bool showingSources() const { return m_sheets.isRequested(Sheet::Sources); }
    void setShowingSources(bool showing) { show(Sheet::Sources, showing); }
    [[nodiscard]] bool showingRecords() const { return m_sheets.isRequested(Sheet::Records); }
    void setShowingRecords(bool showing) { show(Sheet::Records, showing); }

    /// The record of the inspector, and what it was found by. It stays when the inspector is to
    /// close, so that it does not change while it leaves.
    [[nodiscard]] ReleaseRecord inspected() const;
    /// The release, and no record of it.
    [[nodiscard]] ReleaseRecord whole() const;
    /// The release and its record with this id; no record where none has it.
    [[nodiscard]] Q_INVOKABLE vasker::ReleaseRecord recordOf(const QString& id) const;
    /// The path of the file that the release was read from, or empty where there is none by now.
    [[nodiscard]] QString packagedFile() const;
    [[nodiscard]] const QString& digest() const noexcept { return m_digest; }

    /// The stored preference as it stands, known or not; "standard" where nothing is stored.
    [[nodiscard]] QString basemap() const;
    void setBasemap(const QString& basemap);

    [[nodiscard]] const CameraPosition& camera() const noexcept { return m_camera; }
    void setCamera(const CameraPosition& camera);
    /// Sets the camera so that it frames `asset`; changes nothing else.
    void focus(const OpenMapRelease::Asset& asset);
    /// Back to the overview of Canada; changes nothing else.
    Q_INVOKABLE void resetCamera();

  Q_SIGNALS:
    void selectionChanged();
    void inspectorChanged();
    void basemapChanged();
    void cameraChanged();
    /// Before the selection changes.
    void pickedOnMap(const QString& id);

  private:
    using Picked = std::optional<AssetIndex>;
    void show(Sheet sheet, bool showing);
    void open(AssetIndex record);
    void inspect(AssetIndex record);
    void afterClosing(Sheet sheet);
    [[nodiscard]] QString idOf(Picked record) const;

    std::shared_ptr<const LoadedRelease> m_loaded;
    Preferences& m_preferences;
    SheetStack& m_sheets;
    QString m_packagedFile;
    QString m_digest;
    RecordFilter m_filter;
    QString m_selection;
    Picked m_inspected; ///< what the inspector shows, or showed last
    Picked m_pendingInspector;
    QString m_basemap;
    CameraPosition m_camera = canadaOverview;
};

} // namespace vasker
