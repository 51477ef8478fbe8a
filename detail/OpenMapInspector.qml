pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Detail
import Vasker.Platform

// Everything that is told about one record.
Item {
    id: root

    required property releaseRecord record
    readonly property openMapInspector content: root.record.inspector
    readonly property bool scrolled: list.scrolled

    // The record's menu is requested, at a place in this view.
    signal menuRequested(point place)

    function takeFocus(): void {
        name.takeFocus();
    }
    function requestMenuAtFocus(): void {
        const holder = list.holds(list.focused) ? list.focused : name;
        const place = holder.mapToItem(root, LayoutMirroring.enabled ? holder.width : 0, Math.min(holder.height, 24));
        root.menuRequested(Qt.point(place.x, Math.max(0, Math.min(place.y, root.height))));
    }

    Keys.onMenuPressed: root.requestMenuAtFocus()
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier;
        if (event.accepted) {
            root.requestMenuAtFocus();
        }
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: (point, button) => root.menuRequested(point.position)
    }
    TapHandler {
        acceptedDevices: PointerDevice.TouchScreen
        onLongPressed: root.menuRequested(point.position)
    }
    RowSteps {
        id: factSteps

        promptCount: root.content.promptFacts
        count: root.content.facts.length
    }
    GroupedList {
        id: list

        anchors.fill: parent

        Section {
            SectionRow {
                padding: 12
                spacing: 4

                SelectableWholeText {
                    id: name

                    width: parent.width
                    horizontalAlignment: TextEdit.AlignLeft
                    textStyle: Theme.type.title2
                    content: root.content.name
                    keyTarget: list
                }
                SelectableWholeText {
                    width: parent.width
                    horizontalAlignment: TextEdit.AlignLeft
                    textStyle: root.content.idFound ? Theme.type.captionMedium : Theme.type.caption
                    color: Theme.colors.text2
                    content: root.content.subtitle
                    Accessible.description: root.content.idFound ? qsTr("Found by the search") : ""
                    keyTarget: list
                }
            }
            LabelledRow {
                label: qsTr("Source period")
                value: root.content.period
            }
            LabelledRow {
                label: qsTr("Reported status")
                value: root.content.status
            }
            LabelledRow {
                visible: root.content.hasCompany
                label: qsTr("Reporting company")
                value: root.content.companyName
                found: root.content.companyFound
            }
            NoteRow {
                textStyle: Theme.type.caption
                color: Theme.colors.text2
                text: root.content.caveat
            }
        }
        Section {
            title: qsTr("Reported information")

            Repeater {
                model: root.content.facts
                delegate: Loader {
                    required property int index
                    required property openMapFact modelData

                    width: parent?.width ?? 0
                    active: index < factSteps.made
                    Component.onCompleted: setSource("FactRow.qml", {
                        "fact": modelData,
                        "separated": index > 0,
                        "width": width,
                        "keyTarget": list
                    })
                }
            }
        }
        CreditSection {
            title: qsTr("Sources & licences")
            credits: root.content.credits
            promptCredits: root.content.promptCredits
        }
        Section {
            title: qsTr("Location")

            NoteRow {
                text: root.content.location
            }
        }
    }
}
