pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Detail
import Vasker.Platform

// The credits of datasets, and what rows a view adds to them.
Section {
    id: root

    required property list<var> credits
    required property int promptCredits

    Repeater {
        model: root.credits
        delegate: Loader {
            required property int index
            required property openMapCredit modelData

            width: parent?.width ?? 0
            asynchronous: index >= root.promptCredits
            Component.onCompleted: setSource("OpenMapCredit.qml", {
                "credit": modelData,
                "separated": index > 0
            })
        }
    }
}
