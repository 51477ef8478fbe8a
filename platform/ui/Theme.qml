pragma Singleton
import QtQuick

QtObject {
    readonly property color window: "#F7F7F5"
}
