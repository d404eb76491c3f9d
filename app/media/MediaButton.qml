import QtQuick
import Tindra

// A transport button: a glyph that is grey when the player cannot do it and accented when its
// mode is on. A grey one still takes its click and does nothing: a click that missed the player
// does not put the notch away.
Text {
    id: root

    property string glyph
    property bool available: true
    property bool lit: false
    property real size: 12
    signal clicked()

    text: root.glyph
    font.pixelSize: root.size
    color: !root.available ? "#48484a" : (root.lit ? Appearance.tint("#ff375f") : "white")

    MouseArea {
        anchors.fill: parent
        anchors.margins: -6
        onClicked: if (root.available) root.clicked()
    }
}
