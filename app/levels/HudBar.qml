import QtQuick
import QtQuick.Shapes
import Tindra

// The level as the user chose to see it: a continuous bar, 16 segments or a ring. One animated
// level drives every style: it glides linearly while a key is held (each step takes the time
// between presses) and settles with an ease-out after a single change.
Item {
    id: root

    property real level: 0
    property string barStyle: "continuous"
    property color color: "white"
    property real glideSeconds: 0
    property int segmentCount: 16
    property color trackColor: "#3a3a3c"

    property real shownLevel: level
    Behavior on shownLevel {
        NumberAnimation {
            duration: root.glideSeconds > 0 ? root.glideSeconds * 1000 : 220
            easing.type: root.glideSeconds > 0 ? Easing.Linear : Easing.OutCubic
        }
    }

    Rectangle {
        visible: root.barStyle === "continuous"
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: Math.min(parent.height, 6)
        radius: height / 2
        color: root.trackColor
        Rectangle {
            width: parent.width * Math.max(0, Math.min(1, root.shownLevel))
            height: parent.height
            radius: parent.radius
            color: root.color
        }
    }

    Row {
        visible: root.barStyle === "segmented"
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        Repeater {
            model: root.segmentCount
            Rectangle {
                required property int index
                width: (root.width - (root.segmentCount - 1) * 2) / root.segmentCount
                height: Math.min(root.height, 8)
                radius: 1.5
                color: index < Math.round(root.shownLevel * root.segmentCount) ? root.color : root.trackColor
            }
        }
    }

    Shape {
        id: ring
        visible: root.barStyle === "ring"
        readonly property real size: Math.min(root.width, root.height)
        readonly property real stroke: Math.max(2.5, size / 7)
        anchors.centerIn: parent
        width: size
        height: size
        ShapePath {
            strokeColor: root.trackColor
            strokeWidth: ring.stroke
            fillColor: "transparent"
            PathAngleArc {
                centerX: ring.size / 2; centerY: ring.size / 2
                radiusX: (ring.size - ring.stroke) / 2; radiusY: radiusX
                startAngle: 0; sweepAngle: 360
            }
        }
        ShapePath {
            strokeColor: root.color
            strokeWidth: ring.stroke
            capStyle: ShapePath.RoundCap
            fillColor: "transparent"
            PathAngleArc {
                centerX: ring.size / 2; centerY: ring.size / 2
                radiusX: (ring.size - ring.stroke) / 2; radiusY: radiusX
                startAngle: -90
                sweepAngle: 360 * Math.max(0, Math.min(1, root.shownLevel))
            }
        }
    }
}
