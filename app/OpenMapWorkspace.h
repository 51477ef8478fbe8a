#pragma once
// The state of one window's workspace and what follows from it. Views read it and write `query`,
// `kind`, `selection`, `camera` and `basemap`; everything else they see is derived here.
// User-interface thread only.

#include "detail/ReleaseRecord.h"
#include "map/geometry/Camera.h"
#include "map/records/RecordSet.h"

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
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    Q_PROPERTY(QString kind READ kind WRITE setKind NOTIFY kindChanged)
    Q_PROPERTY(QString selection READ selection WRITE setSelection NOTIFY selectionChanged)
    Q_PROPERTY(QString inspector READ inspector NOTIFY inspectorChanged)
    Q_PROPERTY(bool showingSources READ showingSources WRITE setShowingSources NOTIFY
                   showingSourcesChanged)
    Q_PROPERTY(bool showingRecords READ showingRecords WRITE setShowingRecords NOTIFY
                   showingRecordsChanged)
    Q_PROPERTY(Sheet sheet READ sheet NOTIFY sheetChanged)
    Q_PROPERTY(vasker::ReleaseRecord inspected READ inspected NOTIFY inspectorChanged)
    Q_PROPERTY(vasker::ReleaseRecord whole READ whole CONSTANT)
    Q_PROPERTY(QString packagedFile READ packagedFile CONSTANT)
    Q_PROPERTY(QString basemap READ basemap WRITE setBasemap NOTIFY basemapChanged)
    Q_PROPERTY(vasker::CameraPosition camera READ camera WRITE setCamera NOTIFY cameraChanged)
    Q_PROPERTY(vasker::RecordSet records READ records NOTIFY recordsChanged)
    Q_PROPERTY(QList<QString> kinds READ kinds CONSTANT)
    Q_PROPERTY(QList<int> counts READ counts NOTIFY queryChanged)

  public:
    /// What may be on screen over the window; there is never more than one.
    enum class Sheet { NoSheet, Sources, Records, Inspector };
    Q_ENUM(Sheet)

    /// `loaded` is not null; `preferences` outlive the workspace. `packagedFile` is the path of the
    /// file that the release was read from; empty: there is none to hand out.
    OpenMapWorkspace(std::shared_ptr<const LoadedRelease> loaded,
                     Preferences& preferences,
                     QString packagedFile = {},
                     QObject* parent = nullptr);

    [[nodiscard]] const OpenMapRelease& release() const noexcept {
        return m_loaded->index.release();
    }

    /// The search text; not trimmed.
    [[nodiscard]] const QString& query() const noexcept { return m_query; }
    void setQuery(const QString& query);
    /// The kind to show, or "all".
    [[nodiscard]] const QString& kind() const noexcept { return m_kind; }
    void setKind(const QString& kind);

    /// The id of the picked record; empty: none. A new value frames its record and opens the
    /// inspector on it, after the records sheet has closed if that is up. An id that no record has
    /// does neither.
    [[nodiscard]] const QString& selection() const noexcept { return m_selection; }
    void setSelection(const QString& selection);

    /// The id of the record in the inspector; empty while that is closed.
    [[nodiscard]] QString inspector() const { return idOf(m_inspector); }
    /// The id of the record that waits for the records sheet to close; empty: none.
    [[nodiscard]] QString pendingInspector() const { return idOf(m_pendingInspector); }
    [[nodiscard]] bool showingSources() const noexcept { return m_showingSources; }
    void setShowingSources(bool showing);
    [[nodiscard]] bool showingRecords() const noexcept { return m_showingRecords; }
    void setShowingRecords(bool showing);

    /// The sheet that is on screen, also while it leaves: another one has its turn when its
    /// dismissal has been told.
    [[nodiscard]] Sheet sheet() const noexcept { return m_sheet; }
    /// The record of the inspector. It stays when the inspector is to close, so that it does not
    /// change while it leaves.
    [[nodiscard]] ReleaseRecord inspected() const;
    /// The release, and no record of it.
    [[nodiscard]] ReleaseRecord whole() const;
    /// The release and its record with this id; no record where none has it.
    Q_INVOKABLE vasker::ReleaseRecord recordOf(const QString& id) const;
    [[nodiscard]] const QString& packagedFile() const noexcept { return m_packagedFile; }

    /// The stored preference as it stands, known or not; "standard" where nothing is stored.
    [[nodiscard]] QString basemap() const;
    void setBasemap(const QString& basemap);

    [[nodiscard]] const CameraPosition& camera() const noexcept { return m_camera; }
    void setCamera(const CameraPosition& camera);

    /// The records that pass `kind` and `query`, in name order.
    [[nodiscard]] const std::vector<AssetIndex>& filtered() const noexcept { return *m_filtered; }
    [[nodiscard]] RecordSet records() const { return {m_loaded, m_filtered}; }
    /// The kinds of all records, each once, in code-point order.
    [[nodiscard]] QList<QString> kinds() const;
    /// How many records of each of the kinds pass `query`, whatever `kind` is.
    [[nodiscard]] QList<int> counts() const;

    /// Sets the camera so that it frames `asset`; changes nothing else.
    void focus(const OpenMapRelease::Asset& asset);
    /// Back to the overview of Canada; changes nothing else.
    Q_INVOKABLE void resetCamera();
    /// The inspector is to close; what is picked stays until it has.
    Q_INVOKABLE void closeInspector();
    /// The inspector has closed, by whatever means: nothing is picked any more.
    Q_INVOKABLE void dismissInspector();
    /// The records sheet has closed, by whatever means: a waiting record goes to the inspector.
    Q_INVOKABLE void dismissRecords();
    /// The sources sheet has closed, by whatever means.
    Q_INVOKABLE void dismissSources();

  Q_SIGNALS:
    void queryChanged();
    void kindChanged();
    void selectionChanged();
    void inspectorChanged();
    void showingSourcesChanged();
    void showingRecordsChanged();
    void sheetChanged();
    void basemapChanged();
    void cameraChanged();
    void recordsChanged();

  private:
    using Picked = std::optional<AssetIndex>;
    void filter();
    void open(AssetIndex record);
    void setInspector(Picked record);
    /// Gives the screen to a sheet that is to be shown, unless one has it.
    void present();
    /// `sheet` has left the screen.
    void yield(Sheet sheet);
    [[nodiscard]] QString idOf(Picked record) const;

    std::shared_ptr<const LoadedRelease> m_loaded;
    Preferences& m_preferences;
    QString m_packagedFile;
    QString m_query;
    QString m_kind;
    QString m_selection;
    Picked m_inspector;
    Picked m_inspected; ///< m_inspector, or what it was last
    Picked m_pendingInspector;
    bool m_showingSources = false;
    bool m_showingRecords = false;
    Sheet m_sheet = Sheet::NoSheet;
    QString m_basemap;
    CameraPosition m_camera = canadaOverview;
    std::shared_ptr<const std::vector<AssetIndex>> m_filtered;
};

} // namespace vasker
