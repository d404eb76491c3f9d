import QtQuick
import Tindra

// The media section: cover, title, artist and album, a progress bar that can be dragged to
// scrub, the elapsed and remaining times, and the transport buttons, each greyed out when the
// player cannot do it, and left out altogether for a player that takes no command. The position
// advances from one timer aimed at the next whole second, stopped while paused or hidden.
Row {
    id: root

    property var model
    readonly property bool hasContent: root.model !== undefined && root.model.hasTrack
    property real position: -1

    spacing: 12

    function refresh() {
        if (!root.model) return;
        root.position = root.model.displayPosition();
        const wait = root.model.millisecondsToNextSecond();
        if (wait > 0 && root.visible) {
            tick.interval = wait;
            tick.restart();
        } else {
            tick.stop();
        }
    }

    Timer {
        id: tick
        onTriggered: root.refresh()
    }
    Connections {
        target: root.model
        function onPlaybackChanged() { root.refresh(); }
        function onTrackChanged() { root.refresh(); }
    }
    onVisibleChanged: refresh()
    onModelChanged: refresh()

    MediaCover {
        model: root.model
        size: 76
    }

    Column {
        width: 170
        spacing: 3

        Text {
            width: parent.width
            elide: Text.ElideRight
            text: root.model ? root.model.title : ""
            color: "white"
            font.pixelSize: 14
            font.weight: Font.DemiBold
        }
        Text {
            width: parent.width
            elide: Text.ElideRight
            text: root.model ? root.model.artist : ""
            color: "#d1d1d6"
            font.pixelSize: 12
        }
        Text {
            width: parent.width
            elide: Text.ElideRight
            text: root.model ? root.model.album : ""
            color: "#8e8e93"
            font.pixelSize: 11
        }

        Item {
            id: bar
            width: parent.width
            height: 14
            readonly property real fraction: root.model && root.model.duration > 0 && root.position >= 0
                                             ? Math.min(1, root.position / root.model.duration) : 0
            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width
                height: 4
                radius: 2
                color: "#3a3a3c"
                Rectangle {
                    width: parent.width * bar.fraction
                    height: parent.height
                    radius: 2
                    color: Appearance.bar(root.model && root.model.barColor.valid ? root.model.barColor : "white")
                }
            }
            // Where the player cannot seek, the bar still takes the press and does nothing.
            MouseArea {
                readonly property bool seekable: root.model !== undefined && root.model.canSeek
                anchors.fill: parent
                function scrubTo(x) {
                    root.model.drag(Math.max(0, Math.min(1, x / width)) * root.model.duration);
                }
                onPressed: (mouse) => { if (seekable) scrubTo(mouse.x) }
                onPositionChanged: (mouse) => { if (seekable) scrubTo(mouse.x) }
                onReleased: if (seekable) root.model.commitDrag()
            }
        }
        Item {
            width: parent.width
            height: 12
            Text {
                text: root.model && root.position >= 0 ? root.model.elapsedText(root.position) : ""
                color: "#8e8e93"
                font.pixelSize: 10
            }
            Text {
                anchors.right: parent.right
                text: root.model && root.position >= 0 && root.model.duration > 0
                      ? root.model.remainingText(root.position) : ""
                color: "#8e8e93"
                font.pixelSize: 10
            }
        }
        Row {
            spacing: 16
            visible: root.model !== undefined && root.model.hasControls
            MediaButton {
                glyph: "\u21c4"
                available: root.model !== undefined && root.model.canShuffle
                lit: root.model !== undefined && root.model.shuffle > 0
                onClicked: root.model.cycleShuffle()
            }
            MediaButton {
                glyph: "\u25c0\u25c0"
                available: root.model !== undefined && root.model.canGoPrevious
                onClicked: root.model.previous()
            }
            MediaButton {
                glyph: root.model && root.model.playing ? "\u275a\u275a" : "\u25b6"
                size: 16
                available: root.model !== undefined && root.model.canPlayPause
                onClicked: root.model.togglePlayPause()
            }
            MediaButton {
                glyph: "\u25b6\u25b6"
                available: root.model !== undefined && root.model.canGoNext
                onClicked: root.model.next()
            }
            MediaButton {
                glyph: root.model && root.model.repeat === 1 ? "\u21bb1" : "\u21bb"
                available: root.model !== undefined && root.model.canRepeat
                lit: root.model !== undefined && root.model.repeat > 0
                onClicked: root.model.cycleRepeat()
            }
        }
    }
}
