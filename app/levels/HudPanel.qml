import QtQuick
import Tindra

// The level in the opened notch, while the indicator lasts: symbol, a long bar (or a large
// ring) and the percentage.
Column {
    id: root

    property var model
    readonly property bool hasContent: root.model !== undefined && root.model.showing

    width: 200
    spacing: 10

    Text {
        text: {
            if (!root.model) return "";
            if (root.model.kind === "brightness") return qsTr("Brightness");
            if (root.model.kind === "keyboardBacklight") return qsTr("Keyboard light");
            return qsTr("Volume");
        }
        color: "#a1a1a6"
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
    Row {
        spacing: 12
        HudSymbol {
            anchors.verticalCenter: parent.verticalCenter
            width: 26
            height: 22
            name: root.model ? root.model.symbol : ""
        }
        HudBar {
            anchors.verticalCenter: parent.verticalCenter
            width: barStyle === "ring" ? height : 140
            height: barStyle === "ring" ? 44 : 10
            level: root.model ? root.model.level : 0
            barStyle: root.model ? root.model.barStyle : "continuous"
            color: Appearance.bar(root.model ? root.model.barColor : "white")
            glideSeconds: root.model ? root.model.glideSeconds : 0
            segmentCount: root.model ? root.model.segmentCount : 16
        }
    }
    Text {
        text: root.model ? root.model.percent + " %" : ""
        color: "white"
        font.pixelSize: 22
        font.weight: Font.Light
    }
}
