import QtQuick
import Tindra

// The track's cover; until it arrives (or when there is none), a tile with a note.
Item {
    id: root

    property real size: 24
    property var model

    width: root.size
    height: root.size
    CoverImage {
        id: cover
        anchors.fill: parent
        radius: Math.max(4, root.size / 6)
        image: root.model ? root.model.cover : undefined
        tileTop: "#ff375f"
        tileBottom: "#8e3bd8"
    }
    Text {
        anchors.centerIn: parent
        visible: !(root.model !== undefined && root.model.hasCover)
        text: "\u266a"
        color: "white"
        font.pixelSize: root.size * 0.55
    }
}
