#include "app/saving/SaveCommands.h"

#include "app/saving/PictureFile.h"
#include "app/saving/RecordFile.h"
#include "app/saving/SavedName.h"
#include "map/geometry/ScaleBar.h"
#include "map/view/CameraReadout.h"
#include "map/view/ViewScene.h"
#include "platform/Appearance.h"
#include "platform/Locale.h"
#include "platform/ui/theme/Theme.h"
#include "presentation/RecordText.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPointer>

#include <algorithm>

namespace vasker {

namespace {

/// Of the basemap on a page, and the greatest of all: 288 dots per inch where a logical pixel is a
/// 96th of one.
constexpr double pageDensity = 3;

/// The attribution of the basemap of `frame`; empty where none is due.
QString basemapText(const MapFrame& frame) {
    QStringList attributions;
    for (const Attribution& each : frame.attributions) {
        attributions.append(each.text);
    }
    return attributions.isEmpty()
               ? QString()
               : SaveCommands::tr("Basemap: %1").arg(attributions.join(QStringLiteral(" · ")));
}

} // namespace

SaveCommands::SaveCommands(QObject* parent)
    : QObject(parent), m_saving(Appearance::sessionBus()), m_printing(Appearance::sessionBus()) {
    connect(&m_saving, &FileSaving::started, this, [this](const QString& path) {
        tell(tr("Saving %1…").arg(QFileInfo(path).fileName()), Told::progress);
    });
    connect(&m_saving, &FileSaving::ended, this, [this](bool saved, const QString& message) {
        tell(message, saved ? Told::success : Told::failure);
    });
    m_slow.setSingleShot(true);
    m_slow.setInterval(400);
    connect(&m_slow, &QTimer::timeout, this, [this] {
        tell(tr("Taking the picture…"), Told::progress);
    });
    connect(&m_printing, &Printing::started, this, [this] {
        tell(tr("Printing the map…"), Told::progress);
    });
    connect(&m_printing, &Printing::ended, this, [this](bool printed, const QString& message) {
        tell(message, printed ? Told::success : Told::failure);
    });
}

void SaveCommands::saveRecords(QQuickWindow* window) {
    forget();
    const RecordFile file{m_workspace->filter()->records(),
                          {m_workspace->release().releaseID,
                           m_workspace->digest().toStdString(),
                           m_workspace->query().toStdString(),
                           m_workspace->kind().toStdString()}};
    m_saving.save(tr("Save the records shown, as .csv or .geojson"),
                  offeredName(QString(), QStringLiteral(".csv")),
                  window,
                  [file](const QString& path) { return file.write(path); });
}

void SaveCommands::savePicture(QQuickWindow* window, double scale) {
    ask(tr("Save a picture of the map, as .png"), QStringLiteral(".png"), window, scale);
}

void SaveCommands::savePage(QQuickWindow* window) {
    ask(tr("Save the map, as .pdf or .svg"), QStringLiteral(".pdf"), window, pageDensity);
}

void SaveCommands::ask(const QString& title,
                       const QString& suffix,
                       QQuickWindow* window,
                       double scale) {
    const QPointer<QQuickWindow> above(window);
    const QString name = offeredName(QStringLiteral("map"), suffix);
    takePicture(scale, [this, title, name, above](const MapPicture& picture) {
        m_saving.save(title, name, above, [file = PictureFile{picture}](const QString& path) {
            return file.write(path);
        });
    });
}

void SaveCommands::print(QQuickWindow* window) {
    const QPointer<QQuickWindow> above(window);
    takePicture(pageDensity, [this, above](const MapPicture& picture) {
        m_printing.print(picture.title,
                         above,
                         [file = PictureFile{picture}](QIODevice& device, const QPageLayout& page) {
                             return file.writePage(device, page);
                         });
    });
}

void SaveCommands::copyPicture() {
    takePicture(1, [this](const MapPicture& picture) {
        QGuiApplication::clipboard()->setImage(picture.composed());
        tell(tr("The picture of the map is on the clipboard."), Told::success);
    });
}

void SaveCommands::takePicture(double scale, const Use& use) {
    forget();
    m_slow.start();
    const double pixels = scale * m_map->window()->effectiveDevicePixelRatio();
    MapScene scene = sceneOf(*m_map, std::min(pixels, pageDensity));
    const double height = m_map->height() - scene.camera.viewport().coveredBelow;
    scene.state.obstacles = {{0, height - 44, 190, 44}}; // labels keep clear of the scale bar
    // The user may move the map, or search, before its tiles are there.
    const MapPicture picture = pictureWithoutMap(pixels);
    MapSnapshot::take(
        scene, this, [this, picture, use](const std::shared_ptr<const MapDrawing>& map) {
            m_slow.stop();
            forget();
            MapPicture whole = picture;
            whole.map = map;
            whole.notes.insert(whole.notes.size() - 1, basemapText(map->frame));
            use(whole);
        });
}

MapPicture SaveCommands::pictureWithoutMap(double scale) const {
    const OpenMapRelease& release = m_workspace->release();
    QStringList publishers;
    for (const OpenMapRelease::Source& source : release.sources) {
        publishers.append(QString::fromStdString(source.attribution));
    }
    publishers.removeDuplicates();
    const Theme& theme = *Theme::create(nullptr, nullptr);
    const ThemeColors& mapColors =
        m_map->status()->showsImagery() ? Theme::darkColors() : theme.colors();
    const Camera camera = m_map->resolvedCamera();
    const ScaleBar bar = scaleBar(camera);
    return {.map = nullptr,
            // The caption covers the end of the map; its text goes below.
            .mapSize = {m_map->width(), m_map->height() - camera.viewport().coveredBelow},
            .scale = scale,
            .barLength = bar.pixels,
            .barText = distanceText(bar.metres, QLocale(messagesLocale())),
            .bearing = camera.pose().bearing,
            .mapText = mapColors.text,
            .mapHalo = m_map->status()->halo(),
            .north = theme.colors().north(),
            .title = QString::fromStdString(release.coverageName),
            .notes = {shownText(),
                      m_map->property("captionText").toString(),
                      publishers.join(u' '),
                      tr("Release: %1").arg(releaseID())},
            .background = theme.colors().window,
            .text = theme.colors().text,
            .quietText = theme.colors().text2};
}

QString SaveCommands::shownText() const {
    QStringList limits;
    if (!m_workspace->query().isEmpty()) {
        limits.append(tr("Search: %1").arg(m_workspace->query()));
    }
    if (m_workspace->kind() != QStringLiteral("all")) {
        limits.append(tr("Category: %1").arg(categoryText(m_workspace->kind().toStdString())));
    }
    return limits.join(QStringLiteral(" · "));
}

QString SaveCommands::releaseID() const {
    return QString::fromStdString(m_workspace->release().releaseID);
}

QString SaveCommands::offeredName(const QString& what, const QString& suffix) const {
    return savedName({releaseID(), m_workspace->query(), what}, suffix);
}

void SaveCommands::tell(const QString& message, Told told) {
    if (m_message != message || m_told != told) {
        m_message = message;
        m_told = told;
        Q_EMIT messageChanged();
    }
}

} // namespace vasker
