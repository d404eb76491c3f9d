import QtQuick
import Tindra

// The batteries section: the internal battery with its state and time left, beside the
// accessories. The idle layout already shows the battery's percentage, so alone it is drawn
// only when pinned; pinned on a computer without a battery, it says so.
Column {
    id: root

    property var model
    readonly property bool hasContent: root.model !== undefined && root.model.available
    readonly property bool onlyBesideOthers: true

    width: 90
    spacing: 6

    Text {
        text: qsTr("Battery")
        color: "#a1a1a6"
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
    Text {
        visible: !root.hasContent
        width: root.width
        wrapMode: Text.WordWrap
        text: qsTr("This computer has no battery.")
        color: "#a1a1a6"
        font.pixelSize: 12
    }
    BatteryGlyph {
        visible: root.hasContent
        width: 52
        height: 24
        percent: root.model ? root.model.percent : 0
        charging: root.model ? root.model.charging : false
        pluggedIn: root.model ? root.model.pluggedIn : false
    }
    Text {
        visible: root.hasContent
        text: root.model ? root.model.percent + " %" : ""
        color: "white"
        font.pixelSize: 22
        font.weight: Font.Light
    }
    Text {
        visible: root.hasContent
        text: {
            if (!root.model) return "";
            if (root.model.charged) return qsTr("Charged");
            const minutes = root.model.minutesLeft;
            const left = minutes < 0 ? "" : Math.floor(minutes / 60) + ":" + String(minutes % 60).padStart(2, "0");
            if (root.model.charging) return left === "" ? qsTr("Charging") : qsTr("%1 to full").arg(left);
            if (root.model.pluggedIn) return qsTr("On power");
            return left === "" ? qsTr("On battery") : qsTr("%1 left").arg(left);
        }
        color: "#a1a1a6"
        font.pixelSize: 12
    }
    Text {
        visible: root.hasContent && root.model.lowPowerMode
        width: root.width
        wrapMode: Text.WordWrap
        text: qsTr("Low Power Mode is on")
        color: "#ffd60a"
        font.pixelSize: 11
    }
}
