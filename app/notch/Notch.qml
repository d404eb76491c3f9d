import QtQuick
import Tindra 1.0

// The notch: its outline, the compact view beside the camera area while closed, and the panel
// while opened. Geometry comes from the window (`notch`), which also cuts its mask from it.
Item {
    id: root

    NotchShape {
        anchors.fill: parent
        body: notch.shapeRect
        bottomRadius: notch.bottomRadius
        flareRadius: notch.flareRadius
        color: "black"
    }

    // Closed: a mark on the left ear and the activity's name on the right one.
    Item {
        id: compact
        x: notch.shapeRect.x
        y: 0
        width: notch.shapeRect.width
        height: notch.notchRect.height
        opacity: Math.max(0, Math.min(notch.compactProgress, 1 - notch.openProgress * 2))
        visible: opacity > 0

        Rectangle {
            anchors.left: parent.left
            anchors.leftMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(12, parent.height - 10)
            height: width
            radius: width / 2
            color: notch.activityAccent
        }
        Text {
            anchors.right: parent.right
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            width: 80
            horizontalAlignment: Text.AlignRight
            elide: Text.ElideRight
            text: notch.activityLabel
            color: notch.activityAccent
            font.pixelSize: Math.max(9, Math.min(11, parent.height * 0.45))
            font.weight: Font.DemiBold
        }
    }

    // Opened: the idle layout, the time and the date, with the current activity named above.
    Item {
        id: panel
        x: notch.shapeRect.x
        y: notch.notchRect.height
        width: notch.shapeRect.width
        height: Math.max(0, notch.shapeRect.height - notch.notchRect.height)
        clip: true
        opacity: Math.max(0, Math.min(1, (notch.openProgress - 0.35) / 0.5))
        visible: opacity > 0

        Column {
            anchors.centerIn: parent
            spacing: 4

            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: notch.activityLabel !== ""
                text: notch.activityLabel
                color: notch.activityAccent
                font.pixelSize: 13
                font.weight: Font.DemiBold
            }
            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                text: notch.timeText
                color: "white"
                font.pixelSize: 46
                font.weight: Font.Light
            }
            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                text: notch.dateText
                color: "#a1a1a6"
                font.pixelSize: 15
            }
        }
    }
}
