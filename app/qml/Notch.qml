import QtQuick
import Tindra

// The notch: its outline, the compact view beside the camera area while closed, and the panel
// while opened. Geometry comes from the window (`notch`), which also cuts its mask from it; what
// is shown comes from `content`, the same for every display.
Item {
    id: root

    required property NotchWindow notch
    required property NotchContent content

    NotchShape {
        anchors.fill: parent
        body: root.notch.shapeRect
        bottomRadius: root.notch.bottomRadius
        flareRadius: root.notch.flareRadius
        color: "black"
    }

    // Closed: the activity's own compact view on the two ears, or its name.
    Item {
        id: compact
        x: root.notch.shapeRect.x
        y: 0
        width: root.notch.shapeRect.width
        height: root.notch.notchRect.height
        opacity: Math.max(0, Math.min(root.notch.compactProgress, 1 - root.notch.openProgress * 2))
        visible: opacity > 0

        Loader {
            anchors.fill: parent
            active: root.content.compactSource.toString() !== ""
            source: root.content.compactSource
            onLoaded: item.model = Qt.binding(() => root.content.compactModel)
        }
        DefaultCompact {
            anchors.fill: parent
            visible: root.content.compactSource.toString() === ""
            label: root.content.activityLabel
            accent: root.content.activityAccent
        }
    }

    // Opened: the idle layout at rest on the left, then a section for each subsystem that has
    // something to show (or is pinned). While a transient section has something (a level just
    // changed), it stands there alone.
    Item {
        id: panel

        readonly property bool transientShown: root.content.sections.some(
            section => section.transient && section.model.showing)

        x: root.notch.shapeRect.x
        y: root.notch.notchRect.height
        width: root.notch.shapeRect.width
        height: Math.max(0, root.notch.shapeRect.height - root.notch.notchRect.height)
        clip: true
        opacity: Math.max(0, Math.min(1, (root.notch.openProgress - 0.35) / 0.5))
        visible: opacity > 0

        Row {
            anchors.fill: parent
            anchors.margins: 14
            anchors.topMargin: 6
            spacing: 14

            IdleLayout {
                height: parent.height
                content: root.content
            }
            Repeater {
                model: root.content.sections
                delegate: Loader {
                    required property var modelData
                    height: parent.height
                    visible: item !== null && (modelData.transient ? item.hasContent
                        : (modelData.pinned || item.hasContent) && !panel.transientShown)
                    Component.onCompleted: setSource(modelData.source, { model: modelData.model })
                }
            }
        }
    }
}
