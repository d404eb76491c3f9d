import QtQuick
import Tindra

// A transport button: a glyph that is grey when the player cannot do it and accented when its
// mode is on.
Text {
    id: root

    property string glyph
    property bool lit: false
    property real size: 12
    signal clicked()

    text: root.glyph
    font.pixelSize: root.size
    color: !root.enabled ? "#48484a" : (root.lit ? Appearance.tint("#ff375f") : "white")

    MouseArea {
        anchors.fill: parent
        anchors.margins: -6
        enabled: root.enabled
        onClicked: root.clicked()
    }
}
