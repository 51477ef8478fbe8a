#include "app/saving/SaveCommands.h"

#include "app/saving/RecordFile.h"
#include "app/saving/SavedName.h"
#include "platform/Appearance.h"
#include "platform/ui/theme/Theme.h"
#include "presentation/RecordText.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPointer>
#include <QQuickItemGrabResult>

namespace vasker {

SaveCommands::SaveCommands(QObject* parent) : QObject(parent), m_saving(Appearance::sessionBus()) {
    connect(&m_saving, &FileSaving::started, this, [this](const QString& path) {
        tell(tr("Saving %1…").arg(QFileInfo(path).fileName()));
    });
    connect(&m_saving, &FileSaving::ended, this, [this](bool saved, const QString& message) {
        tell(message, !saved);
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
                  savedName({releaseID(), m_workspace->query()}, QStringLiteral(".csv")),
                  window,
                  [file](const QString& path) { return file.write(path); });
}

void SaveCommands::savePicture(QQuickWindow* window, double scale) {
    forget();
    const QPointer<QQuickWindow> above(window);
    takePicture(scale, [this, above](const MapPicture& picture) {
        m_saving.save(tr("Save a picture of the map, as .png"),
                      savedName({releaseID(), m_workspace->query(), QStringLiteral("map")},
                                QStringLiteral(".png")),
                      above,
                      [picture](const QString& path) { return picture.write(path); });
    });
}

void SaveCommands::copyPicture() {
    forget();
    takePicture(1, [this](const MapPicture& picture) {
        QGuiApplication::clipboard()->setImage(picture.composed());
        tell(tr("The picture of the map is on the clipboard."));
    });
}

void SaveCommands::takePicture(double scale, const Use& use) {
    m_map->setProperty("pictured", true);
    const QSizeF pixels = m_map->size() * scale * m_map->window()->effectiveDevicePixelRatio();
    const QSharedPointer<QQuickItemGrabResult> grab = m_map->grabToImage(pixels.toSize());
    const auto finish = [this, grab, use] {
        m_map->setProperty("pictured", false);
        if (grab == nullptr || grab->image().isNull()) {
            tell(tr("The picture could not be taken."), true);
        } else {
            use(pictureOf(grab->image()));
        }
    };
    if (grab == nullptr) {
        finish();
        return;
    }
    connect(grab.get(), &QQuickItemGrabResult::ready, this, finish, Qt::SingleShotConnection);
}

MapPicture SaveCommands::pictureOf(const QImage& grabbed) const {
    const double scale = grabbed.width() / m_map->width();
    const OpenMapRelease& release = m_workspace->release();
    QStringList basemap;
    for (const QVariant& each : m_map->status()->attribution()) {
        basemap.append(each.toMap().value(QStringLiteral("text")).toString());
    }
    QStringList publishers;
    for (const OpenMapRelease::Source& source : release.sources) {
        publishers.append(QString::fromStdString(source.attribution));
    }
    publishers.removeDuplicates();
    // The caption covers the end of the map; its text goes below.
    const double height = m_map->height() - m_map->resolvedCamera().viewport().coveredBelow;
    return {.map = grabbed.copy(0, 0, grabbed.width(), static_cast<int>(height * scale)),
            .scale = scale,
            .title = QString::fromStdString(release.coverageName),
            .notes = {shownText(),
                      m_map->property("captionText").toString(),
                      publishers.join(u' '),
                      basemap.isEmpty()
                          ? QString()
                          : tr("Basemap: %1").arg(basemap.join(QStringLiteral(" · "))),
                      tr("Release: %1").arg(releaseID())},
            .background = Theme::create(nullptr, nullptr)->colors().window,
            .text = Theme::create(nullptr, nullptr)->colors().text,
            .quietText = Theme::create(nullptr, nullptr)->colors().text2};
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

void SaveCommands::tell(const QString& message, bool failed) {
    if (m_message != message || m_failed != failed) {
        m_message = message;
        m_failed = failed;
        Q_EMIT messageChanged();
    }
}

} // namespace vasker
