import QtQuick
import Vasker.Detail
import Vasker.Platform

// The attribution of one cited dataset.
SectionRow {
    id: root

    required property openMapCredit credit

    padding: 15
    spacing: 6

    component Words: WholeText {
        width: parent.width
        textStyle: Theme.type.caption
        color: Theme.colors.text2
        spoken: true
        Accessible.role: Accessible.Paragraph
    }

    Words {
        textStyle: Theme.type.publisher
        color: Theme.colors.text
        content: root.credit.publisher
    }
    Words {
        textStyle: Theme.type.footnote
        color: Theme.colors.text
        content: root.credit.attribution
    }
    Words {
        content: root.credit.conditions
    }
    Words {
        content: root.credit.modifications
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
