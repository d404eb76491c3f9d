import QtQuick
import Tindra

// The opened notch at rest: the time and date, the current activity named above them, and the
// small status items of the providers (the battery) below.
Column {
    id: root

    required property NotchContent content

    width: 150
    spacing: 2

    Text {
        text: root.content.activityLabel !== "" ? root.content.activityLabel : " "
        color: Appearance.tint(root.content.activityAccent)
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
    Text {
        text: root.content.clock.timeText
        color: "white"
        font.pixelSize: 40
        font.weight: Font.Light
    }
    Text {
        width: root.width
        elide: Text.ElideRight
        text: root.content.clock.dateText
        color: "#a1a1a6"
        font.pixelSize: 12
    }
    Row {
        topPadding: 8
        spacing: 10
        Repeater {
            model: root.content.idleItems
            delegate: Loader {
                required property var modelData
                Component.onCompleted: setSource(modelData.source, { model: modelData.model })
            }
        }
    }
}
