pragma ComponentBehavior: Bound
import QtQuick
import Vasker.App
import Vasker.Platform

// What the program is, and under which licences its code, its data and its libraries are.
WindowSheet {
    id: root

    required property string version

    kind: SheetStack.About
    identifier: "open-map-about"
    title: qsTr("About Vasker Beta")
    preferredWidth: 560
    preferredHeight: Math.min(height - 80, 760)

    content: GroupedList {
        onScrolledChanged: root.scrolled = scrolled
        Component.onCompleted: forceActiveFocus(Qt.TabFocusReason)

        Section {
            SectionRow {
                padding: 20
                spacing: 6

                Icon {
                    anchors.horizontalCenter: parent.horizontalCenter
                    name: "application"
                    size: 64 * Theme.iconScale
                }
                Label {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    textStyle: Theme.type.title2
                    text: qsTr("Vasker Beta")
                    spoken: true
                }
                Label {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    textStyle: Theme.type.caption
                    color: Theme.colors.text2
                    text: qsTr("Version %1").arg(root.version)
                    spoken: true
                }
                Label {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.Wrap
                    textStyle: Theme.type.footnote
                    text: qsTr("A map of Canadian energy infrastructure from one packaged release of open data, each value with its source and its period. No account, no log; it edits nothing.")
                    spoken: true
                }
            }
        }
        LabelledRows {
            title: qsTr("Code")
            table: [
                qsTr("Vasker Beta"), "Apache 2.0"
            ]
        }
        LabelledRows {
            title: qsTr("Data")
            table: [
                qsTr("Environment and Climate Change Canada"), qsTr("Open Government Licence – Canada"),
                "Global Energy Monitor", "CC BY 4.0",
                "Natural Earth", qsTr("Public domain"),
                qsTr("© OpenStreetMap contributors"), "ODbL 1.0",
                "NASA (Blue Marble, GIBS)", qsTr("Public domain")
            ]

            NoteRow {
                text: qsTr("“Sources & coverage” tells the sources of this release one by one. None of these publishers endorses this program.")
            }
        }
        LabelledRows {
            title: qsTr("Libraries")
            table: [
                "Qt 6", "LGPL 3",
                "ICU", qsTr("Unicode licence"),
                "SQLite", qsTr("Public domain"),
                "simdjson", "Apache 2.0",
                "OpenSSL", "Apache 2.0",
                "protozero", "BSD 2-Clause",
                "uriparser", "BSD 3-Clause",
                "zlib", "zlib",
                qsTr("Inter, the typeface"), "SIL OFL 1.1"
            ]
        }
    }
}
