pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Detail
import Vasker.Platform

// The credits of datasets, and what rows a view adds to them.
Section {
    id: root

    required property list<var> credits
    required property int promptCredits

    readonly property RowSteps steps: RowSteps {
        promptCount: root.promptCredits
        count: root.credits.length
    }

    Repeater {
        model: root.credits
        delegate: Loader {
            required property int index
            required property openMapCredit modelData

            width: parent?.width ?? 0
            active: index < root.steps.made
            Component.onCompleted: setSource("OpenMapCredit.qml", {
                "credit": modelData,
                "separated": index > 0,
                "width": width
            })
        }
    }
}
