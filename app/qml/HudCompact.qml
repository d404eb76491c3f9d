import QtQuick

// The level on the closed notch: a speaker on the left ear and the bar on the right one, filled
// to the level (empty while muted).
Item {
    id: root

    property var model

    SpeakerGlyph {
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 16
        height: Math.min(14, parent.height - 8)
        muted: root.model ? root.model.muted : false
    }
    Rectangle {
        id: track
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 56
        height: 5
        radius: 2.5
        color: "#3a3a3c"
        Rectangle {
            width: parent.width * (root.model ? root.model.level : 0)
            height: parent.height
            radius: parent.radius
            color: "white"
        }
    }
}
