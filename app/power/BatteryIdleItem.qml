import QtQuick
import Tindra

// The battery's percentage in the idle layout; nothing at all without a battery.
Row {
    id: root

    property var model

    readonly property bool shown: root.model !== undefined && root.model.available
    visible: shown
    spacing: 6

    BatteryGlyph {
        anchors.verticalCenter: parent.verticalCenter
        percent: root.model ? root.model.percent : 0
        charging: root.model ? root.model.charging : false
        pluggedIn: root.model ? root.model.pluggedIn : false
    }
    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: root.model ? root.model.percent + " %" : ""
        color: "white"
        font.pixelSize: 13
    }
}
