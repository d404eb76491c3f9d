import QtQuick
import QtQuick.Shapes
import Tindra

// One battery part as a small ring filled to its level, with the part's letter inside or, for a
// device's only battery, the device's picture; in the warning red when the level is low.
Item {
    id: root

    property int level: 0
    property string letter: ""
    property string kind: "other"
    property bool low: false
    readonly property color color: root.low ? "#ff453a" : "white"
    readonly property real size: Math.min(width, height)
    readonly property real stroke: Math.max(2, size / 8)

    implicitWidth: 22
    implicitHeight: 22

    Shape {
        anchors.centerIn: parent
        width: root.size
        height: root.size
        ShapePath {
            strokeColor: "#5a5a5e"  // the level bar's track is too dark at this size
            strokeWidth: root.stroke
            fillColor: "transparent"
            PathAngleArc {
                centerX: root.size / 2; centerY: root.size / 2
                radiusX: (root.size - root.stroke) / 2; radiusY: radiusX
                startAngle: 0; sweepAngle: 360
            }
        }
        ShapePath {
            strokeColor: root.color
            strokeWidth: root.stroke
            capStyle: ShapePath.RoundCap
            fillColor: "transparent"
            PathAngleArc {
                centerX: root.size / 2; centerY: root.size / 2
                radiusX: (root.size - root.stroke) / 2; radiusY: radiusX
                startAngle: -90
                sweepAngle: 3.6 * Math.max(0, Math.min(100, root.level))
            }
        }
    }
    Text {
        anchors.centerIn: parent
        visible: root.letter !== ""
        text: root.letter
        color: root.color
        font.pixelSize: Math.round(root.size * 0.42)
        font.weight: Font.Bold
    }
    AccessoryGlyph {
        anchors.centerIn: parent
        visible: root.letter === ""
        width: Math.round(root.size * 0.6)
        height: Math.round(root.size * 0.5)
        kind: root.kind
        color: root.color
    }
}
