import QtQuick

// How a text is set: size and line height in pixels at 100 % text, weight, tracking.
QtObject {
    id: root

    required property real size
    required property real line
    property int weight: Font.Normal
    property real tracking: 0
    property real scale: 1

    readonly property real lineHeight: Math.round(root.line * root.scale)
    // What a line is taller than its letters, half of it: keeps them in the line's middle.
    readonly property real halfLeading: Math.round((root.lineHeight - metrics.height) / 2)
    readonly property font font: Qt.font({
        "pixelSize": Math.round(root.size * root.scale),
        "weight": root.weight,
        "letterSpacing": root.tracking * root.scale
    })
    property FontMetrics metrics: FontMetrics {
        font: root.font
    }
}
