import QtQuick
import Tindra

// The file tray in the opened notch: its items (a click opens one, dragging one out hands its file
// to another application, × takes it out of the tray), the progress of a copy with its Stop
// button, and what the last drop could not do.
Column {
    id: root

    property var model
    readonly property bool hasContent: root.model !== undefined && root.model.showing

    width: 220
    spacing: 4

    Row {
        width: root.width
        Text {
            width: root.width - clear.width
            text: qsTr("File Tray")
            color: "#a1a1a6"
            font.pixelSize: 12
            font.weight: Font.DemiBold
        }
        Text {
            id: clear
            visible: root.model !== undefined && root.model.items.length > 1
            text: qsTr("Remove All")
            color: Appearance.tint("#0a84ff")
            font.pixelSize: 11
            MouseArea {
                anchors.fill: parent
                anchors.margins: -4
                cursorShape: Qt.PointingHandCursor
                onClicked: root.model.removeAll()
            }
        }
    }
    Row {
        visible: root.model !== undefined && root.model.copying
        spacing: 8
        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 120
            height: 4
            radius: 2
            color: "#3a3a3c"
            Rectangle {
                width: parent.width * (root.model ? root.model.progress : 0)
                height: parent.height
                radius: 2
                color: Appearance.tint("#0a84ff")
            }
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Stop")
            color: Appearance.tint("#0a84ff")
            font.pixelSize: 11
            MouseArea {
                anchors.fill: parent
                anchors.margins: -4
                cursorShape: Qt.PointingHandCursor
                onClicked: root.model.cancelCopy()
            }
        }
    }
    Text {
        width: root.width
        visible: text !== ""
        text: root.model ? (root.model.copying ? root.model.progressText : "") : ""
        color: "#a1a1a6"
        font.pixelSize: 10
        elide: Text.ElideRight
    }
    Repeater {
        model: root.model ? root.model.items : []
        delegate: Item {
            id: row

            required property var modelData

            objectName: "trayItem:" + row.modelData.name
            width: root.width
            height: row.modelData.missing ? 34 : 22

            // What is dragged out: the file, as a file URL, for any application that takes one.
            // A notch that is a Wayland layer surface starts the drag itself.
            readonly property bool ownDrag: Window.window !== null && Window.window.dragsFilesItself === true
            Drag.active: area.drag.active
            Drag.dragType: row.ownDrag ? Drag.None : Drag.Automatic
            Drag.supportedActions: Qt.CopyAction
            Drag.mimeData: { "text/uri-list": row.modelData.url }

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: 12
                height: 15
                radius: 2
                color: row.modelData.missing ? "#ff453a" : row.modelData.copy ? "#64d2ff" : "#d1d1d6"
            }
            Column {
                x: 20
                width: parent.width - 40
                anchors.verticalCenter: parent.verticalCenter
                Text {
                    width: parent.width
                    elide: Text.ElideMiddle
                    textFormat: Text.PlainText
                    text: row.modelData.name
                    color: row.modelData.missing ? "#8e8e93" : "white"
                    font.pixelSize: 12
                    font.strikeout: row.modelData.missing
                }
                Text {
                    width: parent.width
                    visible: row.modelData.missing
                    elide: Text.ElideRight
                    text: qsTr("This file was moved to a place Tindra cannot find, or deleted.")
                    color: "#ff453a"
                    font.pixelSize: 9
                }
            }
            MouseArea {
                id: area
                anchors.fill: parent
                anchors.rightMargin: 20
                // A missing file's row takes the click and opens nothing.
                drag.target: row.modelData.missing ? null : dragProxy
                cursorShape: row.modelData.missing ? Qt.ArrowCursor : Qt.PointingHandCursor
                onClicked: if (!row.modelData.missing) root.model.open(row.modelData.id)
                drag.onActiveChanged: {
                    if (drag.active && row.ownDrag) Window.window.dragFilesOut([row.modelData.url])
                }
            }
            Item { id: dragProxy }
            Text {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                Accessible.name: qsTr("Remove from the tray")
                text: "×"
                color: "#8e8e93"
                font.pixelSize: 15
                MouseArea {
                    anchors.fill: parent
                    anchors.margins: -4
                    cursorShape: Qt.PointingHandCursor
                    onClicked: root.model.remove(row.modelData.id)
                }
            }
        }
    }
    Text {
        visible: root.model !== undefined && root.model.items.length > 0
        text: qsTr("Click to open, or drag to use this file")
        color: "#8e8e93"
        font.pixelSize: 9
    }
    Text {
        width: root.width
        visible: text !== ""
        wrapMode: Text.Wrap
        maximumLineCount: 3
        elide: Text.ElideRight
        textFormat: Text.PlainText
        text: root.model ? root.model.status : ""
        color: "#ff9f0a"
        font.pixelSize: 11
    }
}
