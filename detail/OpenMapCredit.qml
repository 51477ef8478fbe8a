import QtQuick
import Vasker.Detail
import Vasker.Platform

// The attribution of one cited dataset.
SectionRow {
    id: root

    required property openMapCredit credit

    padding: 15
    spacing: 6

    Label {
        width: parent.width
        horizontalAlignment: Text.AlignLeft
        wrapMode: Text.Wrap
        textStyle: Theme.type.publisher
        text: root.credit.publisher
        spoken: true
        Accessible.role: Accessible.Paragraph
    }
    Label {
        width: parent.width
        horizontalAlignment: Text.AlignLeft
        wrapMode: Text.Wrap
        textStyle: Theme.type.footnote
        text: root.credit.attribution
        spoken: true
        Accessible.role: Accessible.Paragraph
    }
    Label {
        width: parent.width
        horizontalAlignment: Text.AlignLeft
        wrapMode: Text.Wrap
        textStyle: Theme.type.caption
        color: Theme.colors.text2
        text: root.credit.conditions
        spoken: true
        Accessible.role: Accessible.Paragraph
    }
    Label {
        width: parent.width
        horizontalAlignment: Text.AlignLeft
        wrapMode: Text.Wrap
        textStyle: Theme.type.caption
        color: Theme.colors.text2
        text: root.credit.modifications
        spoken: true
        Accessible.role: Accessible.Paragraph
    }
    Flow {
        width: parent.width
        spacing: 16

        LinkText {
            visible: address.length > 0
            text: qsTr("Source data")
            address: root.credit.sourceAddress
        }
        LinkText {
            visible: address.length > 0
            text: qsTr("Licence")
            address: root.credit.licenceAddress
        }
    }
}
