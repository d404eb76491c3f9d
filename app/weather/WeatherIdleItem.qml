import QtQuick
import Tindra

// The weather in the idle layout: its symbol and the temperature; nothing while there is no
// weather fit to show.
Row {
    id: root

    property var model

    readonly property bool shown: root.model !== undefined && root.model.available
    visible: shown
    spacing: 4

    WeatherSymbol {
        anchors.verticalCenter: parent.verticalCenter
        name: root.model ? root.model.symbol : ""
        size: 16
    }
    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: root.model ? root.model.temperature : ""
        color: "white"
        font.pixelSize: 13
    }
}
