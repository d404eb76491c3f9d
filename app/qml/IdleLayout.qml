import QtQuick
import Tindra

// The opened notch at rest: the time and date, the current activity named above them, and the
// small status items of the providers (battery, weather, Focus) below.
Column {
    id: root

    required property NotchContent content

    width: 150
    spacing: 2

    Text {
        width: root.width
        wrapMode: Text.WordWrap
        text: root.content.activityLabel !== "" ? root.content.activityLabel : " "
        color: Appearance.tint(root.content.activityAccent)
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
    // A 12-hour clock ("12:59 PM") is set smaller rather than reach the section beside it.
    Text {
        width: root.width
        height: 48
        verticalAlignment: Text.AlignVCenter
        text: root.content.clock.timeText
        color: "white"
        font.pixelSize: 40
        font.weight: Font.Light
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 24
    }
    // A long date ("Wednesday 30 September") takes a second line rather than losing its end.
    Text {
        width: root.width
        wrapMode: Text.WordWrap
        text: root.content.clock.dateText
        color: "#a1a1a6"
        font.pixelSize: 12
    }
    // Wrapped onto a second line rather than running into the section beside it.
    Flow {
        width: root.width
        topPadding: 8
        spacing: 10
        Repeater {
            model: root.content.idleItems
            delegate: Loader {
                required property var modelData
                // An item with nothing to show takes no room (its own `shown`: an item inside a
                // hidden loader is never visible itself).
                visible: item !== null && item.shown
                Component.onCompleted: setSource(modelData.source, { model: modelData.model })
            }
        }
    }
}
