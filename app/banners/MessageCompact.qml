import QtQuick
import Tindra

// A message or missed call on the closed notch: who, on the right ear; a bubble or a handset on
// the left one.
Item {
    id: root

    property var model
    readonly property bool missedCall: root.model !== undefined && root.model.missedCall

    CallGlyph {
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(18, parent.height - 8)
        height: width
        visible: root.missedCall
        color: "#ff453a"
    }
    Rectangle {
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(18, parent.height - 8)
        height: width * 0.8
        radius: height / 2
        color: "#30d158"
        visible: !root.missedCall
    }
    Text {
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 120
        horizontalAlignment: Text.AlignRight
        elide: Text.ElideRight
        textFormat: Text.PlainText
        text: root.model ? root.model.title : ""
        color: "white"
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
}
