import QtQuick
import Tindra

// The track's cover; until it arrives (or when there is none), a tile with a note.
Rectangle {
    id: root

    property real size: 24
    property var model

    width: root.size
    height: root.size
    radius: Math.max(4, root.size / 6)
    gradient: Gradient {
        GradientStop { position: 0; color: "#ff375f" }
        GradientStop { position: 1; color: "#8e3bd8" }
    }
    Text {
        anchors.centerIn: parent
        visible: !cover.visible
        text: "\u266a"
        color: "white"
        font.pixelSize: root.size * 0.55
    }
    CoverImage {
        id: cover
        anchors.fill: parent
        radius: root.radius
        visible: root.model !== undefined && root.model.hasCover
        image: root.model ? root.model.cover : undefined
    }
}
