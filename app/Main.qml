import QtQuick
import QtQuick.Window
import Vasker.Map
import Vasker.Platform

Window {
    title: qsTr("Vasker Beta")
    width: 1280
    height: 800
    minimumWidth: 900
    minimumHeight: 620
    visible: true
    color: Theme.window

    MapView {
        anchors.fill: parent
    }
}
