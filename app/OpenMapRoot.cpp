#include "app/OpenMapRoot.h"

#include "data/OpenMapRelease.h"
#include "platform/Background.h"

#include <QFile>
#include <QJsonValue>

#include <system_error>
#include <utility>

namespace vasker {

namespace {

const QString resourceName = QStringLiteral("OpenMap");
const QString resourceExtension = QStringLiteral("json");
const QString digestKey = QStringLiteral("VaskerOpenMapSHA256");

// Never translated: it continues a message that is shown as it stands.
const QString reassurance = QStringLiteral(
    " Reinstall this beta from its original distributor. Your private Vasker library "
    "has not been opened.");

} // namespace

OpenMapRoot::OpenMapRoot(Bundle bundle,
                         TextLocale locale,
                         Preferences& preferences,
                         QObject* parent)
    : QObject(parent), m_bundle(std::move(bundle)), m_locale(std::move(locale)),
      m_preferences(preferences) {}

void OpenMapRoot::load() {
    if (std::exchange(m_started, true)) {
        return;
    }
    const auto resource = m_bundle.resource(resourceName, resourceExtension);
    const QString digest = m_bundle.information(digestKey).toString();
    if (!resource || digest.isEmpty()) {
        fail(std::string(OpenMapRelease::errorDescription(OpenMapRelease::Invalid::provenance)));
        return;
    }
    try {
        runInBackground(
            this,
            [path = QFile::encodeName(*resource).toStdString(),
             expected = digest.toStdString(),
             locale = m_locale](const std::stop_token& stop) {
                return loadRelease(path, expected, locale, stop);
            },
            [this](const LoadOutcome& outcome) { finish(outcome); });
    } catch (const std::system_error& error) {
        fail(error.code().message());
    }
}

OpenMapRoot::Screen OpenMapRoot::screen() const noexcept {
    if (m_workspace != nullptr) {
        return Screen::Ready;
    }
    return m_failed ? Screen::Failed : Screen::Loading;
}

QString OpenMapRoot::failureText() const {
    return m_failed ? QString::fromStdString(m_error) + reassurance : QString();
}

void OpenMapRoot::fail(std::string description) {
    m_error = std::move(description);
    m_failed = true;
    Q_EMIT screenChanged();
}

void OpenMapRoot::finish(const LoadOutcome& outcome) {
    if (const auto* failure = std::get_if<LoadFailure>(&outcome)) {
        fail(failure->description);
        return;
    }
    m_workspace =
        new OpenMapWorkspace(std::get<std::shared_ptr<const LoadedRelease>>(outcome),
                             m_preferences,
                             m_sheets,
                             m_bundle.resource(resourceName, resourceExtension).value_or(QString()),
                             m_bundle.information(digestKey).toString(),
                             this);
    Q_EMIT screenChanged();
}

} // namespace vasker
