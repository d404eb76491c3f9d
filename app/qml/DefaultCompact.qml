import QtQuick

// The compact view of an activity that has none of its own yet: a mark on the left ear and its
// name on the right one.
Item {
    id: root

    property string label
    property color accent

    Rectangle {
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(12, parent.height - 10)
        height: width
        radius: width / 2
        color: root.accent
        visible: root.label !== ""
    }
    Text {
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        width: 80
        horizontalAlignment: Text.AlignRight
        elide: Text.ElideRight
        text: root.label
        color: root.accent
        font.pixelSize: Math.max(9, Math.min(11, parent.height * 0.45))
        font.weight: Font.DemiBold
    }
}
