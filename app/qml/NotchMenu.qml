import QtQuick
import Tindra

// The notch's context menu drawn inside its own window, for a notch that cannot place a menu
// window beside itself (a Wayland layer surface). It hangs below the point that was clicked and
// stays within the window; the window takes the pointer where it is drawn.
Rectangle {
    id: root

    required property NotchWindow notch

    readonly property var items: notch.menuItems

    visible: items.length > 0
    x: Math.max(4, Math.min(notch.menuPosition.x, parent.width - width - 4))
    y: Math.max(4, Math.min(notch.menuPosition.y + 4, parent.height - height - 4))
    width: 200
    height: column.height + 8
    radius: 8
    color: Qt.rgba(0.16, 0.16, 0.18, 0.98)
    border.color: Qt.rgba(1, 1, 1, 0.18)

    onVisibleChanged: report()
    onXChanged: report()
    onYChanged: report()
    onHeightChanged: report()
    function report() {
        notch.setMenuArea(visible ? Qt.rect(x, y, width, height) : Qt.rect(0, 0, 0, 0))
    }

    Column {
        id: column
        x: 4
        y: 4
        width: parent.width - 8
        Repeater {
            model: root.items
            delegate: Item {
                id: entry
                required property var modelData
                required property int index
                objectName: "menuItem:" + modelData.text
                width: column.width
                height: modelData.separator ? 9 : 24

                Rectangle {
                    visible: entry.modelData.separator
                    anchors.centerIn: parent
                    width: parent.width - 12
                    height: 1
                    color: Qt.rgba(1, 1, 1, 0.15)
                }
                Rectangle {
                    visible: !entry.modelData.separator && area.containsMouse && entry.modelData.enabled
                    anchors.fill: parent
                    radius: 5
                    color: "#0a84ff"
                }
                Text {
                    visible: !entry.modelData.separator
                    x: 8
                    anchors.verticalCenter: parent.verticalCenter
                    text: (entry.modelData.checked ? "✓ " : "") + entry.modelData.text.replace("&", "")
                    color: entry.modelData.enabled ? "white" : "#8e8e93"
                    font.pixelSize: 13
                }
                MouseArea {
                    id: area
                    anchors.fill: parent
                    hoverEnabled: true
                    enabled: !entry.modelData.separator
                    onClicked: root.notch.chooseMenuItem(entry.index)
                }
            }
        }
    }
}
