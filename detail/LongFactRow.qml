import QtQuick
import Vasker.Detail
import Vasker.Platform

// As FactRow, for a value or a label that is longer than a screen.
SectionRow {
    id: root

    required property openMapFact fact
    property Item keyTarget: null

    spacing: 5

    LongText {
        width: parent.width
        textStyle: Theme.type.caption
        color: Theme.colors.text2
        text: root.fact.label
        scroller: root.keyTarget
    }
    LongText {
        width: parent.width
        text: root.fact.value
        scroller: root.keyTarget
    }
    LinkText {
        visible: address.length > 0
        anchors.left: parent.left
        width: Math.min(implicitWidth, parent.width)
        text: root.fact.linkTitle
        address: root.fact.linkAddress
    }
}
