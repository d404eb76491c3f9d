import QtQuick
import Tindra

// A battery notice on the closed notch: the battery on the left ear, and on the right one what
// happened with the percentage: power connected (green), disconnected, or the low warning (red).
Item {
    id: root

    property var model
    readonly property string notice: root.model ? root.model.notice : ""

    BatteryGlyph {
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        percent: root.model ? root.model.noticePercent : 0
        charging: root.notice === "pluggedIn" && root.model.charging
        pluggedIn: root.notice === "pluggedIn"
    }
    Text {
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        text: {
            const percent = (root.model ? root.model.noticePercent : 0) + " %";
            if (root.notice === "low") return qsTr("Low") + "  " + percent;
            return percent;
        }
        color: root.notice === "pluggedIn" ? "#30d158" : root.notice === "low" ? "#ff453a" : "white"
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
}
