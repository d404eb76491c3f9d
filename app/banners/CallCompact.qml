import QtQuick
import Tindra

// A ringing call on the closed notch: only that it rings, and in which application; answer it
// on the desktop's own banner. The handset pulses while it rings.
Item {
    id: root

    property var model

    CallGlyph {
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(18, parent.height - 8)
        height: width
        SequentialAnimation on opacity {
            running: root.visible && root.model !== undefined && root.model.ringing
            loops: Animation.Infinite
            NumberAnimation { to: 0.35; duration: 500 }
            NumberAnimation { to: 1; duration: 500 }
        }
    }
    Text {
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 120
        horizontalAlignment: Text.AlignRight
        elide: Text.ElideRight
        text: qsTr("Ringing")
        color: "#30d158"
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
}
