import QtQuick

// The track's cover. Until the cover itself arrives, a tile in the accent colour with a note.
Rectangle {
    id: root

    property real size: 24

    width: root.size
    height: root.size
    radius: Math.max(4, root.size / 6)
    gradient: Gradient {
        GradientStop { position: 0; color: "#ff375f" }
        GradientStop { position: 1; color: "#8e3bd8" }
    }
    Text {
        anchors.centerIn: parent
        text: "\u266a"
        color: "white"
        font.pixelSize: root.size * 0.55
    }
}
