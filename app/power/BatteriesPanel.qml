import QtQuick
import Tindra

// The batteries section: the internal battery with its state and time left. Accessories join
// it when their provider arrives.
Column {
    id: root

    property var model
    readonly property bool hasContent: root.model !== undefined && root.model.available

    width: 90
    spacing: 6

    Text {
        text: qsTr("Battery")
        color: "#a1a1a6"
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
    BatteryGlyph {
        width: 52
        height: 24
        percent: root.model ? root.model.percent : 0
        charging: root.model ? root.model.charging : false
        pluggedIn: root.model ? root.model.pluggedIn : false
    }
    Text {
        text: root.model ? root.model.percent + " %" : ""
        color: "white"
        font.pixelSize: 22
        font.weight: Font.Light
    }
    Text {
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
        visible: root.model !== undefined && root.model.lowPowerMode
        text: qsTr("Low Power Mode is on")
        color: "#ffd60a"
        font.pixelSize: 11
    }
}
