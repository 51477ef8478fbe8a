#pragma once
// What a window shows: the release is being opened, cannot be shown, or is there. It loads once;
// the first outcome stays for the life of the window.

#include "app/OpenMapWorkspace.h"
#include "app/ReleaseLoading.h"
#include "app/sheets/SheetStack.h"
#include "platform/Bundle.h"

#include <QObject>
#include <QString>
#include <QtQmlIntegration>

#include <string>

namespace vasker {

class Preferences;

class OpenMapRoot : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application for each window")
    Q_PROPERTY(Screen screen READ screen NOTIFY screenChanged)
    Q_PROPERTY(QString failureText READ failureText NOTIFY screenChanged)
    Q_PROPERTY(vasker::SheetStack* sheets READ sheets CONSTANT)
    Q_PROPERTY(vasker::OpenMapWorkspace* workspace READ workspace NOTIFY screenChanged)

  public:
    enum class Screen { Loading, Failed, Ready };
    Q_ENUM(Screen)

    /// `preferences` outlive the root.
    OpenMapRoot(Bundle bundle,
                TextLocale locale,
                Preferences& preferences,
                QObject* parent = nullptr);

    /// Starts loading; does nothing when that has been done before, however it went.
    void load();

    [[nodiscard]] Screen screen() const noexcept;
    /// The description of the failure screen; empty on the others. Shown as it stands.
    [[nodiscard]] QString failureText() const;
    /// Of the window, also while there is no workspace.
    [[nodiscard]] SheetStack* sheets() noexcept { return &m_sheets; }
    /// Null until the release is there.
    [[nodiscard]] OpenMapWorkspace* workspace() const noexcept { return m_workspace; }

  Q_SIGNALS:
    void screenChanged();

  private:
    void fail(std::string description);
    void finish(const LoadOutcome& outcome);

    Bundle m_bundle;
    TextLocale m_locale;
    Preferences& m_preferences;
    SheetStack m_sheets;
    bool m_started = false;
    OpenMapWorkspace* m_workspace = nullptr;
    std::string m_error;
    bool m_failed = false;
};

} // namespace vasker
