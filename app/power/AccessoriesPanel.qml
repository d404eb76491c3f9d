import QtQuick
import Tindra

// The connected Bluetooth accessories in the batteries section: picture, name, and each part's
// level (left, right and case for earbuds, one level otherwise), as numbers or as rings.
Column {
    id: root

    property var model
    readonly property bool hasContent: root.model !== undefined && root.model.hasContent
    readonly property bool rings: root.model !== undefined && root.model.batteryStyle === "ring"

    width: 150
    spacing: 8

    Text {
        text: qsTr("Accessories")
        color: "#a1a1a6"
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
    Repeater {
        model: root.model ? root.model.accessories : []
        delegate: Row {
            required property var modelData
            spacing: 8
            AccessoryGlyph {
                anchors.verticalCenter: parent.verticalCenter
                width: 22
                height: 18
                kind: modelData.kind
            }
            Column {
                Text {
                    width: 110
                    text: modelData.name
                    color: "white"
                    font.pixelSize: 12
                    elide: Text.ElideRight
                }
                AccessoryBatteryRings {
                    id: rings
                    visible: root.rings && hasContent
                    topPadding: 3
                    device: modelData
                    lowThreshold: root.model ? root.model.lowThreshold : 20
                    ringSize: 20
                }
                Text {
                    visible: !rings.visible
                    width: 110
                    wrapMode: Text.WordWrap
                    text: {
                        if (root.rings) return qsTr("No battery reported");
                        const parts = [];
                        if (modelData.left >= 0) parts.push(qsTr("L") + " " + modelData.left + " %");
                        if (modelData.right >= 0) parts.push(qsTr("R") + " " + modelData.right + " %");
                        if (modelData.caseLevel >= 0) parts.push(qsTr("Case") + " " + modelData.caseLevel + " %");
                        if (modelData.main >= 0) parts.push(modelData.main + " %");
                        return parts.length > 0 ? parts.join("  ") : qsTr("No battery reported");
                    }
                    color: "#a1a1a6"
                    font.pixelSize: 11
                }
            }
        }
    }
}
