pragma Singleton
import QtQuick
import Vasker.Platform

// Colours by role, text styles and measures of the whole application.
QtObject {
    id: root

    readonly property bool dark: Appearance.dark
    readonly property bool highContrast: Appearance.highContrast

    readonly property color window: dark ? "#181B1F" : "#F7F7F5"
    readonly property color surface: dark ? "#1D2125" : "#FFFFFF"
    readonly property color sheet: dark ? "#16191C" : "#F1F1EE"
    readonly property color card: dark ? "#23282D" : "#FFFFFF"
    readonly property color control: dark ? "#262B30" : "#FFFFFF"
    readonly property color raised: dark ? "#30363C" : "#FFFFFF"
    readonly property color line: highContrast ? text3 : (dark ? "#2C3136" : "#E1E1DD")
    readonly property color controlLine: highContrast ? text3 : (dark ? "#454C54" : "#C9CAC7")
    readonly property color text: dark ? "#ECEEF0" : "#1A1D21"
    readonly property color text2: highContrast ? text : (dark ? "#A9B0B8" : "#565C65")
    readonly property color text3: dark ? "#7F8790" : "#7B828B"
    readonly property color accent: dark ? "#84B8FF" : "#1A5FD0"
    readonly property color onAccent: dark ? "#0E1318" : "#FFFFFF"
    // The compass needle's end; the red of the records.
    readonly property color north: dark ? "#FD504B" : "#CC1C46"
    readonly property color selected: dark ? "#2A3A50" : "#E4EDFB"
    readonly property color hover: Qt.alpha(text, 0.06)
    readonly property color pressed: Qt.alpha(text, 0.11)
    // Over what lies behind a sheet; the second where it stays in use to the eye.
    readonly property color scrim: dark ? Qt.rgba(0, 0, 0, 0.5) : Qt.alpha("#14181D", 0.28)
    readonly property color sideScrim: dark ? Qt.rgba(0, 0, 0, 0.24) : Qt.alpha("#14181D", 0.14)
    readonly property color thumb: Qt.alpha(text3, 0.45)

    // The desktop's text size; all text and the controls around it follow, widths and gaps do not.
    readonly property real textScale: Appearance.textScale
    readonly property real iconScale: Math.min(textScale, 1.5)
    readonly property real controlHeight: Math.round(20 * textScale + 16)
    readonly property real headerHeight: Math.round(20 * textScale + 32)
    readonly property real iconColumn: Math.round(20 * textScale)
    readonly property real columnWidth: 320
    // From this width of a window on, a sheet at its side leaves the map in use to the eye.
    readonly property real besideWidth: 1216

    readonly property real thumbRadius: 5
    readonly property real menuRowRadius: 7
    readonly property real controlRadius: 9
    readonly property real cardRadius: 11
    readonly property real sheetRadius: 14

    readonly property int hoverDuration: Appearance.reducedMotion ? 0 : 80
    readonly property int menuDuration: Appearance.reducedMotion ? 0 : 120
    readonly property int sheetDuration: 220
    readonly property int riseDuration: 280
    readonly property int leaveDuration: 160
    readonly property int settleDuration: Appearance.reducedMotion ? 0 : 180
    readonly property int spinnerTurn: 1100
    readonly property bool still: Appearance.reducedMotion

    readonly property TextStyle title2: TextStyle {
        size: 20
        line: 26
        weight: Font.Bold
        tracking: -0.2
        scale: root.textScale
    }
    readonly property TextStyle emptyTitle: TextStyle {
        size: 17
        line: 23
        weight: Font.DemiBold
        scale: root.textScale
    }
    readonly property TextStyle headline: TextStyle {
        size: 15
        line: 22
        weight: Font.DemiBold
        scale: root.textScale
    }
    readonly property TextStyle body: TextStyle {
        size: 15
        line: 22
        scale: root.textScale
    }
    readonly property TextStyle subheadline: TextStyle {
        size: 14
        line: 20
        weight: Font.Medium
        scale: root.textScale
    }
    readonly property TextStyle rowName: TextStyle {
        size: 14
        line: 19
        weight: Font.Medium
        scale: root.textScale
    }
    readonly property TextStyle field: TextStyle {
        size: 14
        line: 20
        scale: root.textScale
    }
    readonly property TextStyle footnote: TextStyle {
        size: 13
        line: 19
        scale: root.textScale
    }
    readonly property TextStyle caption: TextStyle {
        size: 12
        line: 16
        scale: root.textScale
    }
    readonly property TextStyle captionLine: TextStyle {
        size: 12
        line: 15
        scale: root.textScale
    }
    // Scale and attribution, on the map itself.
    readonly property TextStyle mapNote: TextStyle {
        size: 11
        line: 14
        scale: root.textScale
    }
    readonly property TextStyle menuTitle: TextStyle {
        size: 12
        line: 16
        weight: Font.Medium
        scale: root.textScale
    }
    readonly property TextStyle publisher: TextStyle {
        size: 14
        line: 20
        weight: Font.Bold
        scale: root.textScale
    }
    readonly property TextStyle sectionTitle: TextStyle {
        size: 13
        line: 19
        weight: Font.DemiBold
        scale: root.textScale
    }
    readonly property TextStyle link: TextStyle {
        size: 12
        line: 16
        weight: Font.Medium
        scale: root.textScale
    }
}
