import QtQuick
import Vasker.Detail
import Vasker.Platform

// A reported value below its label, and the link to where it was reported.
SectionRow {
    id: root

    required property openMapFact fact
    property Item keyTarget: null

    spacing: 5
    Accessible.role: Accessible.Grouping
    Accessible.name: root.fact.spokenText

    WholeText {
        width: parent.width
        textStyle: Theme.type.caption
        color: Theme.colors.text2
        content: root.fact.label
        spoken: true
        Accessible.role: Accessible.Paragraph
    }
    SelectableWholeText {
        // A number has no direction: Qt would align it at the far edge of a mirrored window. A text that
        // sets its own width is laid out twice.
        anchors.left: parent.left
        width: LayoutMirroring.enabled && !isLong ? Math.min(Math.ceil(implicitWidth), parent.width) : parent.width
        horizontalAlignment: TextEdit.AlignLeft
        textStyle: root.fact.found ? Theme.type.headline : Theme.type.body
        content: root.fact.value
        Accessible.description: root.fact.found ? qsTr("Found by the search") : ""
        isTabStop: false
        keyTarget: root.keyTarget
    }
    LinkText {
        visible: address.length > 0
        anchors.left: parent.left
        width: Math.min(implicitWidth, parent.width)
        text: root.fact.linkTitle
        address: root.fact.linkAddress
    }
}
