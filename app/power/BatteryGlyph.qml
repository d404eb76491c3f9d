import QtQuick
import Tindra

// A battery outline filled to `percent`, with a bolt while charging. Green on power, red when low.
Item {
    id: root

    property int percent: 0
    property bool charging: false
    property bool pluggedIn: false

    implicitWidth: 26
    implicitHeight: 13

    readonly property color fill: root.pluggedIn ? "#30d158" : (root.percent <= 20 ? "#ff453a" : "white")

    Rectangle {
        id: body
        width: parent.width - 3
        height: parent.height
        radius: 3.5
        color: "transparent"
        border.color: "#8e8e93"
        border.width: 1
        Rectangle {
            x: 2
            y: 2
            height: parent.height - 4
            width: Math.max(2, (parent.width - 4) * root.percent / 100)
            radius: 2
            color: root.fill
        }
        Text {
            anchors.centerIn: parent
            visible: root.charging
            text: "\u26a1"
            color: "black"
            font.pixelSize: parent.height - 3
        }
    }
    Rectangle {
        anchors.left: body.right
        anchors.leftMargin: 1
        anchors.verticalCenter: body.verticalCenter
        width: 2
        height: parent.height / 3
        radius: 1
        color: "#8e8e93"
    }
}
