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
        Section {
            title: qsTr("Code")

            LabelledRow {
                label: qsTr("Vasker Beta")
                value: "Apache 2.0"
            }
        }
        Section {
            title: qsTr("Data")

            LabelledRow {
                label: qsTr("Environment and Climate Change Canada")
                value: qsTr("Open Government Licence – Canada")
            }
            LabelledRow {
                label: "Global Energy Monitor"
                value: "CC BY 4.0"
            }
            LabelledRow {
                label: "Natural Earth"
                value: qsTr("Public domain")
            }
            LabelledRow {
                label: qsTr("© OpenStreetMap contributors")
                value: "ODbL 1.0"
            }
            LabelledRow {
                label: "NASA (Blue Marble, GIBS)"
                value: qsTr("Public domain")
            }
            SectionRow {
                Label {
                    width: parent.width
                    wrapMode: Text.Wrap
                    textStyle: Theme.type.footnote
                    text: qsTr("“Sources & coverage” tells the sources of this release one by one. None of these publishers endorses this program.")
                    spoken: true
                }
            }
        }
        Section {
            title: qsTr("Libraries")

            LabelledRow {
                label: "Qt 6"
                value: "LGPL 3"
            }
            LabelledRow {
                label: "ICU"
                value: qsTr("Unicode licence")
            }
            LabelledRow {
                label: "SQLite"
                value: qsTr("Public domain")
            }
            LabelledRow {
                label: "simdjson"
                value: "Apache 2.0"
            }
            LabelledRow {
                label: "OpenSSL"
                value: "Apache 2.0"
            }
            LabelledRow {
                label: "protozero"
                value: "BSD 2-Clause"
            }
            LabelledRow {
                label: "uriparser"
                value: "BSD 3-Clause"
            }
            LabelledRow {
                label: "zlib"
                value: "zlib"
            }
            LabelledRow {
                label: qsTr("Inter, the typeface")
                value: "SIL OFL 1.1"
            }
        }
    }
}
