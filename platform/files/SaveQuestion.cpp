#include "platform/files/SaveQuestion.h"

#include "platform/Portal.h"
#include "platform/files/FileDialogParts.h"

#include <QDir>
#include <QFileInfo>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QStandardPaths>

#include <utility>

namespace vasker {

void SaveQuestion::ask(const QDBusConnection& bus,
                       const QString& title,
                       const QString& name,
                       QQuickWindow* window,
                       QObject* owner,
                       Answer answer) {
    // It goes with its answer, or with its owner.
    auto* const question = new SaveQuestion(title, name, window, owner, std::move(answer));
    question->askByPortal(bus);
}

SaveQuestion::SaveQuestion(
    QString title, QString name, QQuickWindow* window, QObject* owner, Answer answer)
    : QObject(owner), m_title(std::move(title)), m_name(std::move(name)), m_window(window),
      m_answer(std::move(answer)) {}

void SaveQuestion::askByPortal(const QDBusConnection& bus) {
    const PortalCall call{
        .interface = QStringLiteral("org.freedesktop.portal.FileChooser"),
        .method = QStringLiteral("SaveFile"),
        .arguments = {PortalRequest::parentName(m_window), m_title},
        .options = {{QStringLiteral("current_name"), m_name}, {QStringLiteral("modal"), true}}};
    PortalRequest::send(
        bus, call, this, [this](PortalRequest::Outcome outcome, const QVariantMap& results) {
            if (outcome == PortalRequest::Outcome::unavailable) {
                askByDialog();
            } else if (outcome == PortalRequest::Outcome::cancelled) {
                cancel();
            } else {
                choose(QUrl(results.value(QStringLiteral("uris")).toStringList().value(0)));
            }
        });
}

void SaveQuestion::askByDialog() {
    QQmlEngine* const engine = m_window == nullptr ? nullptr : qmlEngine(m_window);
    if (engine != nullptr) {
        m_focus = m_window->activeFocusItem();
        QQmlComponent component(engine,
                                QUrl(QStringLiteral("qrc:/qt/qml/Vasker/Platform/SaveDialog.qml")));
        m_dialog.reset(component.createWithInitialProperties(
            {{QStringLiteral("asked"), QVariant::fromValue(this)}}));
    }
    if (m_dialog == nullptr || !m_dialog->property("visible").toBool()) {
        finish(Outcome::unavailable, {});
    }
}

QUrl SaveQuestion::offered() const {
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QDir folder = documents.exists() ? documents : QDir::home();
    return QUrl::fromLocalFile(folder.filePath(m_name));
}

QUrl SaveQuestion::fileAt(const QUrl& place) {
    if (!place.scheme().isEmpty() || place.isEmpty()) {
        return place;
    }
    const QString path = place.toString(QUrl::PreferLocalFile);
    // A whole path that was typed stands behind the folder and its stroke.
    return QUrl::fromLocalFile(path.sliced(path.lastIndexOf(QLatin1String("//")) + 1));
}

void SaveQuestion::completeDialog(const QFont& font) const {
    completeFileDialog(*m_window, font);
}

bool SaveQuestion::isTaken(const QUrl& place) const {
    const QUrl file = fileAt(place);
    return file.isLocalFile() && QFileInfo::exists(file.toLocalFile());
}

void SaveQuestion::finish(Outcome outcome, const QUrl& place) {
    deleteLater();
    if (m_focus != nullptr) { // Qt's dialog leaves the focus nowhere
        QMetaObject::invokeMethod(
            m_focus,
            [focus = m_focus.data()] { focus->forceActiveFocus(Qt::PopupFocusReason); },
            Qt::QueuedConnection);
    }
    if (const Answer answer = std::exchange(m_answer, nullptr)) {
        answer(outcome, place);
    }
}

} // namespace vasker
