#pragma once
// How the desktop wants programs to look: light or dark, contrast, motion, text size. Read from the
// desktop's settings portal and followed live; without a portal the system's palette and font
// decide. One object serves all windows.

#include "platform/ui/theme/ThemeColors.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QtQmlIntegration>

#include <optional>

class QJSEngine;
class QQmlEngine;

namespace vasker {

class Appearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ isDark NOTIFY changed)
    Q_PROPERTY(bool highContrast READ highContrast NOTIFY changed)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY changed)
    Q_PROPERTY(double textScale READ textScale NOTIFY changed)

  public:
    /// Starts with the system palette's answer and asks the portal on `bus` without waiting for it;
    /// again whenever there is a new one. A bus that is not connected is fine.
    explicit Appearance(const QDBusConnection& bus, QObject* parent = nullptr);
    /// The session's bus if there is one; never starts one.
    [[nodiscard]] static QDBusConnection sessionBus();
    /// The one object of the process, made on first use.
    static Appearance* create(QQmlEngine*, QJSEngine*);

    [[nodiscard]] bool isDark() const { return scheme() == ColorScheme::dark; }
    [[nodiscard]] ColorScheme scheme() const;
    [[nodiscard]] bool highContrast() const noexcept {
        return m_desktop.highContrast || m_gnome.highContrast;
    }
    [[nodiscard]] bool reducedMotion() const noexcept {
        return m_desktop.reducedMotion || m_gnome.reducedMotion;
    }
    /// What the sizes of texts are multiplied with, 1 to 2.
    [[nodiscard]] double textScale() const;

  Q_SIGNALS:
    void changed();

  private Q_SLOTS:
    void apply(const QString& group, const QString& key, const QDBusVariant& wrapped);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// What one source of settings says; where two say something of the same, either can ask for
    /// it.
    struct Source {
        bool highContrast = false;
        bool reducedMotion = false;
    };

    void askPortal();

    QDBusConnection m_bus;
    std::optional<ColorScheme> m_scheme; ///< none: the system's palette decides
    Source m_desktop;                    ///< of every desktop's settings
    Source m_gnome;                      ///< of GNOME's own keys
    double m_gnomeTextScale = 1;
};

} // namespace vasker
