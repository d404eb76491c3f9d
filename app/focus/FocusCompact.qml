import QtQuick
import Tindra

// A Focus turning on, on the closed notch: its symbol on the left ear, its name on the right.
Item {
    id: root

    property var model

    FocusGlyph {
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(18, parent.height - 8)
        height: width
        symbol: root.model ? root.model.symbol : "moon"
    }
    Text {
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 110
        horizontalAlignment: Text.AlignRight
        elide: Text.ElideRight
        text: root.model ? root.model.name : ""
        color: "#7d7aff"
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
}
