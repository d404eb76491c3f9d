import QtQuick
import Tindra

// The playing track on the closed notch: its cover on the left ear and whether it plays on the
// right one: the live spectrum of the player's sound where it is switched on, else bars that
// stand still and show the state, not the sound.
Item {
    id: root

    property var model
    readonly property bool live: root.model !== undefined && root.model.spectrum !== null
                                 && root.model.spectrum.enabled

    MediaCover {
        model: root.model
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        size: Math.min(22, parent.height - 8)
    }
    Row {
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        visible: root.model !== undefined && root.model.playing && !root.live
        Repeater {
            model: [0.55, 1.0, 0.7, 0.4]
            delegate: Rectangle {
                required property real modelData
                anchors.verticalCenter: parent.verticalCenter
                width: 3
                height: 12 * modelData
                radius: 1.5
                color: Appearance.bar("#ff375f")
            }
        }
    }
    SpectrumBars {
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 6 * 3 + 5 * 2
        height: 14
        visible: root.live && root.model.playing
        spectrum: root.model ? root.model.spectrum : null
        color: Appearance.bar(root.model && root.model.barColor.valid ? root.model.barColor : "#ff375f")
    }
    Text {
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        visible: root.model !== undefined && !root.model.playing
        text: "\u275a\u275a"
        color: "#a1a1a6"
        font.pixelSize: 9
    }
}
