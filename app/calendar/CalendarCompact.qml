import QtQuick
import Tindra

// The featured meeting on the closed notch: its calendar's colour and title on the left ear,
// and on the right one the ear text: the minutes or hours to go, the start time, or "Now".
Item {
    id: root

    property var model

    Row {
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        spacing: 6

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 4
            height: 14
            radius: 2
            color: root.model ? root.model.color : "#0a84ff"
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, 64)
            elide: Text.ElideRight
            text: root.model ? root.model.title : ""
            color: "white"
            font.pixelSize: 11
            font.weight: Font.DemiBold
        }
    }
    Text {
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        text: root.model ? root.model.earText : ""
        color: root.model && root.model.started ? "#30d158" : "white"
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
}
