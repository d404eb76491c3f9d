import QtQuick
import Tindra

// The level on the closed notch: its symbol on the left ear, the bar (or ring) on the right one.
Item {
    id: root

    property var model

    HudSymbol {
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 18
        height: Math.min(16, parent.height - 8)
        name: root.model ? root.model.symbol : ""
    }
    HudBar {
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: barStyle === "ring" ? height : 60
        height: barStyle === "ring" ? Math.min(18, parent.height - 8) : 8
        level: root.model ? root.model.level : 0
        barStyle: root.model ? root.model.barStyle : "continuous"
        color: Appearance.bar(root.model ? root.model.barColor : "white")
        glideSeconds: root.model ? root.model.glideSeconds : 0
        segmentCount: root.model ? root.model.segmentCount : 16
    }
}
