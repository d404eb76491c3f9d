import QtQuick

// "Join" with the meeting service's name: opens the meeting link with the desktop's handler. With
// `label` set it is the same blue pill with other words ("Open Signal").
Rectangle {
    id: root

    property string service
    property bool compact: false
    property string label
    signal clicked()

    width: label.implicitWidth + (root.compact ? 12 : 20)
    height: root.compact ? 16 : 22
    radius: height / 2
    color: area.pressed ? "#0062cc" : "#0a84ff"

    Text {
        id: label
        anchors.centerIn: parent
        text: root.label !== "" ? root.label
            : root.compact ? qsTr("Join") : qsTr("Join %1").arg(root.service)
        color: "white"
        font.pixelSize: root.compact ? 10 : 12
        font.weight: Font.DemiBold
    }
    MouseArea {
        id: area
        anchors.fill: parent
        anchors.margins: -4
        cursorShape: Qt.PointingHandCursor
        onClicked: root.clicked()
    }
}
