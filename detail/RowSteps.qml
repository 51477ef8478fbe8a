import QtQuick

// How many rows of a long list are made: the first at once, then, when a picture of them is drawn, one
// after each frame; beyond `eager` only while more are requested, so that a list costs what is seen of it.
Timer {
    id: root

    required property int promptCount
    required property int count
    property int eager: 100
    property bool requested: true
    property int later: 0
    readonly property int made: root.promptCount + root.later

    interval: root.later === 0 ? 30 : 1
    repeat: true
    running: root.made < root.count && (root.made < root.eager || root.requested)
    onTriggered: ++root.later
}
