pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Detail
import Vasker.Platform

// What the release covers, whose data it holds, and what is private.
Item {
    id: root

    required property releaseRecord record
    // The file of the release; empty: there is none to share.
    property string packagedFile
    readonly property openMapSources content: root.record.sources
    readonly property bool scrolled: list.scrolled

    function takeFocus(): void {
        list.forceActiveFocus(Qt.TabFocusReason);
    }

    RowSteps {
        id: limitationSteps

        promptCount: root.content.promptLimitations
        count: root.content.limitations.length
    }
    GroupedList {
        id: list

        anchors.fill: parent

        Section {
            title: qsTr("This release")

            NoteRow {
                textStyle: Theme.type.body
                text: root.content.coverageName
            }
            NoteRow {
                textStyle: Theme.type.body
                text: root.content.counts
            }
            NoteRow {
                textStyle: Theme.type.caption
                color: Theme.colors.text2
                text: root.content.identity
            }
            NoteRow {
                text: root.content.note
            }
        }
        Section {
            title: qsTr("Coverage & limitations")

            Repeater {
                model: root.content.limitations
                delegate: Loader {
                    required property int index
                    required property string modelData

                    width: parent?.width ?? 0
                    active: index < limitationSteps.made
                    Component.onCompleted: setSource("NoteRow.qml", {
                        "text": modelData,
                        "separated": index > 0,
                        "width": width
                    })
                }
            }
        }
        CreditSection {
            title: qsTr("Sources & reuse")
            credits: root.content.credits
            promptCredits: root.content.promptCredits

            NoteRow {
                text: root.content.licence
            }
            ShareRow {
                visible: root.packagedFile.length > 0
                file: root.packagedFile
            }
        }
        Section {
            title: qsTr("Privacy")

            Repeater {
                model: root.content.privacy
                delegate: NoteRow {
                    required property string modelData

                    text: modelData
                }
            }
        }
    }
}
