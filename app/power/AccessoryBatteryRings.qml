import QtQuick
import Tindra

// An accessory's battery parts as rings side by side: left, right and case for earbuds, one ring
// with the device's picture otherwise. `parts` limits which are drawn; parts without a level are
// left out.
Row {
    id: root

    property var device: ({})
    property var parts: ["left", "right", "caseLevel", "main"]
    property int lowThreshold: 20
    property real ringSize: 22
    readonly property bool hasContent: shown.length > 0
    readonly property var shown: root.parts.filter(part => root.device[part] !== undefined
                                                           && root.device[part] >= 0)

    function letterOf(part) {
        return part === "left" ? qsTr("L") : part === "right" ? qsTr("R")
             : part === "caseLevel" ? qsTr("C") : "";
    }

    spacing: 4

    Repeater {
        model: root.shown
        delegate: AccessoryBatteryRing {
            required property string modelData
            width: root.ringSize
            height: root.ringSize
            level: root.device[modelData]
            letter: root.letterOf(modelData)
            kind: root.device.kind === undefined ? "other" : root.device.kind
            low: level <= root.lowThreshold
        }
    }
}
