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
        requested: limitations.y + limitations.height < list.contentY + 2 * list.height
        onMadeChanged: rows.fill()
        Component.onCompleted: rows.fill()
    }
    ListModel {
        id: rows

        function fill(): void {
            const texts = root.content.limitations;
            while (rows.count < Math.min(limitationSteps.made, limitationSteps.count)) {
                rows.append({
                    "text": texts[rows.count]
                });
            }
        }
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
            NoteRow {
                visible: text.length > 0
                textStyle: Theme.type.caption
                color: Theme.colors.text2
                text: root.content.languageNote
            }
        }
        Section {
            id: limitations

            title: qsTr("Coverage & limitations")

            Repeater {
                model: rows
                delegate: NoteRow {}
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
