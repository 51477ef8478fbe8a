pragma ComponentBehavior: Bound
import QtQuick
import Vasker.App
import Vasker.Platform

// How the program is used, a section for each task.
WindowSheet {
    id: root

    required property OpenMapApp application

    kind: SheetStack.Guide
    identifier: "open-map-guide"
    title: qsTr("User guide")
    preferredWidth: 640
    preferredHeight: Math.min(height - 80, 960)

    content: GroupedList {
        onScrolledChanged: root.scrolled = scrolled
        Component.onCompleted: forceActiveFocus(Qt.TabFocusReason)

        Section {
            SectionRow {
                Button {
                    width: parent.width
                    implicitHeight: shortcuts.height
                    leftInset: -10
                    rightInset: -10
                    topInset: -6
                    bottomInset: -6
                    radius: Theme.menuRowRadius
                    label: qsTr("Keyboard shortcuts")
                    onClicked: root.sheets.request(SheetStack.Shortcuts)

                    Label {
                        id: shortcuts

                        width: parent.width
                        wrapMode: Text.Wrap
                        color: Theme.colors.accent
                        text: qsTr("Keyboard shortcuts")
                    }
                }
            }
        }
        Repeater {
            model: root.application.guide
            delegate: Section {
                id: section

                required property guideSection modelData

                title: section.modelData.title

                Repeater {
                    model: section.modelData.rows
                    delegate: SectionRow {
                        id: row

                        required property guideRow modelData

                        spacing: 2

                        Label {
                            visible: text.length > 0
                            width: parent.width
                            wrapMode: Text.Wrap
                            textStyle: Theme.type.headline
                            text: row.modelData.label
                            spoken: true
                        }
                        Label {
                            width: parent.width
                            wrapMode: Text.Wrap
                            text: row.modelData.text
                            spoken: true
                        }
                    }
                }
            }
        }
    }
}
