import QtQuick
import Tindra

// An accessory notice on the closed notch: the device's picture on the left ear and, on the right
// one, its battery when it connects (left and right earbud, or its one level), "Disconnected"
// when it goes, the part that runs low, in red, or where the sound now plays. Levels are numbers
// or rings, as the model's batteryStyle says.
Item {
    id: root

    property var model
    readonly property string notice: root.model ? root.model.notice : ""
    readonly property var device: root.model ? root.model.noticeAccessory : ({})
    readonly property bool rings: root.model !== undefined && root.model.batteryStyle === "ring"
                                  && (root.notice === "connected" || root.notice === "low")

    function level(part) {
        return root.device[part] === undefined ? -1 : root.device[part];
    }
    function partName(part) {
        return part === "left" ? qsTr("Left") : part === "right" ? qsTr("Right")
             : part === "caseLevel" ? qsTr("Case") : "";
    }

    AccessoryGlyph {
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 20
        height: Math.min(16, parent.height - 8)
        kind: root.device.kind === undefined ? "other" : root.device.kind
    }
    AccessoryBatteryRings {
        id: rings
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        visible: root.rings && hasContent
        device: root.device
        parts: root.notice === "low" ? [root.model.noticePart]
             : root.level("left") >= 0 || root.level("right") >= 0 ? ["left", "right"] : ["main"]
        lowThreshold: root.model ? root.model.lowThreshold : 20
        ringSize: Math.min(20, root.height - 4)
    }
    Text {
        visible: !rings.visible
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: 12
        font.weight: Font.DemiBold
        width: Math.min(implicitWidth, root.width - 60)  // all the room right of the picture
        horizontalAlignment: Text.AlignRight
        elide: Text.ElideRight
        textFormat: Text.PlainText
        color: root.notice === "low" ? "#ff453a" : root.notice === "disconnected" ? "#a1a1a6" : "white"
        text: {
            if (root.notice === "disconnected") return qsTr("Disconnected");
            if (root.notice === "routed") return qsTr("Playing on %1").arg(root.device.name);
            if (root.notice === "low") {
                const part = root.model.noticePart;
                return (root.partName(part) + " " + root.level(part) + " %").trim();
            }
            const left = root.level("left"), right = root.level("right"), main = root.level("main");
            if (left >= 0 || right >= 0) {
                return "L " + (left >= 0 ? left : "–") + "  R " + (right >= 0 ? right : "–");
            }
            return main >= 0 ? main + " %" : qsTr("Connected");
        }
    }
}
