#pragma once
// The theme of the desktop for views: colours by role, text styles, measures and durations. Follows
// the desktop live.

#include "platform/ui/theme/TextStyles.h"
#include "platform/ui/theme/ThemeColors.h"

#include <QObject>
#include <QtQmlIntegration>

class QJSEngine;
class QQmlEngine;

namespace vasker {

class Appearance;

class Theme : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(vasker::ThemeColors colors READ colors NOTIFY changed)
    /// Of the dark theme, for what lies on something dark in either theme.
    Q_PROPERTY(vasker::ThemeColors darkColors READ darkColors CONSTANT)
    Q_PROPERTY(bool dark READ isDark NOTIFY changed)
    Q_PROPERTY(bool highContrast READ hasHighContrast NOTIFY changed)

    /// The desktop's text size, 1 to 2. All text and the controls around it follow; widths and gaps
    /// do not.
    Q_PROPERTY(double textScale READ textScale NOTIFY textScaleChanged)
    Q_PROPERTY(vasker::TextStyles type READ type NOTIFY textScaleChanged)
    Q_PROPERTY(double iconScale READ iconScale NOTIFY textScaleChanged)
    Q_PROPERTY(double controlHeight READ controlHeight NOTIFY textScaleChanged)
    Q_PROPERTY(double headerHeight READ headerHeight NOTIFY textScaleChanged)
    Q_PROPERTY(double iconColumn READ iconColumn NOTIFY textScaleChanged)

    Q_PROPERTY(double columnWidth MEMBER columnWidth CONSTANT)
    Q_PROPERTY(double besideWidth MEMBER besideWidth CONSTANT)
    Q_PROPERTY(double menuRowRadius MEMBER menuRowRadius CONSTANT)
    Q_PROPERTY(double controlRadius MEMBER controlRadius CONSTANT)
    Q_PROPERTY(double cardRadius MEMBER cardRadius CONSTANT)
    Q_PROPERTY(double sheetRadius MEMBER sheetRadius CONSTANT)

    /// Whether nothing is to move.
    Q_PROPERTY(bool still READ isStill NOTIFY changed)
    /// Of sheets that come from their side, come from below, and leave, in milliseconds.
    Q_PROPERTY(int sheetDuration MEMBER sheetDuration CONSTANT)
    Q_PROPERTY(int riseDuration MEMBER riseDuration CONSTANT)
    Q_PROPERTY(int leaveDuration MEMBER leaveDuration CONSTANT)
    /// Of fades and of what settles in its place, in milliseconds; 0 where nothing is to move.
    Q_PROPERTY(int hoverDuration READ hoverDuration NOTIFY changed)
    Q_PROPERTY(int menuDuration READ menuDuration NOTIFY changed)
    Q_PROPERTY(int settleDuration READ settleDuration NOTIFY changed)

  public:
    static constexpr double columnWidth = 320;
    /// From this width of a window on, a sheet at its side leaves the map in use to the eye.
    static constexpr double besideWidth = 1216;
    static constexpr double menuRowRadius = 7;
    static constexpr double controlRadius = 9;
    static constexpr double cardRadius = 11;
    static constexpr double sheetRadius = 14;
    static constexpr int sheetDuration = 220;
    static constexpr int riseDuration = 280;
    static constexpr int leaveDuration = 160;

    /// Follows `appearance`, which outlives it.
    explicit Theme(const Appearance& appearance, QObject* parent = nullptr);
    /// The one object of the process, made on first use.
    static Theme* create(QQmlEngine*, QJSEngine*);

    [[nodiscard]] const ThemeColors& colors() const noexcept { return m_colors; }
    [[nodiscard]] static const ThemeColors& darkColors() { return themeColors(ColorScheme::dark); }
    [[nodiscard]] bool isDark() const noexcept;
    [[nodiscard]] bool hasHighContrast() const noexcept;
    [[nodiscard]] double textScale() const noexcept { return m_textScale; }
    [[nodiscard]] const TextStyles& type() const noexcept { return m_type; }
    [[nodiscard]] double iconScale() const noexcept;
    [[nodiscard]] double controlHeight() const noexcept;
    [[nodiscard]] double headerHeight() const noexcept;
    [[nodiscard]] double iconColumn() const noexcept;
    [[nodiscard]] bool isStill() const noexcept;
    [[nodiscard]] int hoverDuration() const noexcept { return isStill() ? 0 : 80; }
    [[nodiscard]] int menuDuration() const noexcept { return isStill() ? 0 : 120; }
    [[nodiscard]] int settleDuration() const noexcept { return isStill() ? 0 : 180; }

  Q_SIGNALS:
    void changed();
    void textScaleChanged();

  private:
    void follow();

    const Appearance& m_appearance;
    ThemeColors m_colors;
    double m_textScale = 0;
    TextStyles m_type;
};

} // namespace vasker
