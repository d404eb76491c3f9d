import QtQuick
import Tindra

// The Focus that lasts, in the idle layout, while the indicator is kept.
Row {
    id: root

    property var model

    readonly property bool shown: root.model !== undefined && root.model.indicator
    visible: shown
    spacing: 5

    FocusGlyph {
        anchors.verticalCenter: parent.verticalCenter
        width: 14
        height: 14
        symbol: root.model ? root.model.symbol : "moon"
        color: Appearance.tint("#7d7aff")
    }
    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: root.model ? root.model.name : ""
        color: Appearance.tint("#7d7aff")
        font.pixelSize: 13
    }
}
