#include "platform/ui/theme/Theme.h"

#include "platform/Appearance.h"

#include <QGuiApplication>
#include <QJSEngine>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vasker {

Theme::Theme(const Appearance& appearance, QObject* parent)
    : QObject(parent), m_appearance(appearance) {
    follow();
    connect(&appearance, &Appearance::changed, this, &Theme::follow);
}

Theme* Theme::create(QQmlEngine*, QJSEngine*) {
    static auto* const shared = new Theme(*Appearance::create(nullptr, nullptr), qGuiApp);
    QJSEngine::setObjectOwnership(shared, QJSEngine::CppOwnership);
    return shared;
}

void Theme::follow() {
    const ThemeColors& colors = themeColors(m_appearance.scheme());
    m_colors = m_appearance.highContrast() ? colors.withHighContrast() : colors;
    if (const double scale = m_appearance.textScale(); std::exchange(m_textScale, scale) != scale) {
        m_type = TextStyles::at(scale);
        Q_EMIT textScaleChanged();
    }
    Q_EMIT changed();
}

bool Theme::isDark() const noexcept {
    return m_appearance.isDark();
}

bool Theme::hasHighContrast() const noexcept {
    return m_appearance.highContrast();
}

bool Theme::isStill() const noexcept {
    return m_appearance.reducedMotion();
}

double Theme::iconScale() const noexcept {
    return std::min(m_textScale, 1.5);
}

double Theme::controlHeight() const noexcept {
    return std::round(20 * m_textScale + 16);
}

double Theme::headerHeight() const noexcept {
    return std::round(20 * m_textScale + 32);
}

double Theme::iconColumn() const noexcept {
    return std::round(20 * m_textScale);
}

} // namespace vasker
