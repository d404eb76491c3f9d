import QtQuick
import Tindra

// The weather section: the symbol and temperature large, the condition, the precipitation
// outlook and the coming sunrise or sunset; while nothing fit to show exists, why; and always
// the source of the data.
Column {
    id: root

    property var model
    readonly property bool hasContent: root.model !== undefined && root.model.hasContent

    width: 190
    spacing: 4

    Text {
        text: qsTr("Weather")
        color: "#a1a1a6"
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
    Row {
        visible: root.model !== undefined && root.model.available
        spacing: 10
        WeatherSymbol {
            anchors.verticalCenter: parent.verticalCenter
            name: root.model ? root.model.symbol : ""
            size: 34
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: root.model ? root.model.temperature : ""
            color: "white"
            font.pixelSize: 28
            font.weight: Font.Light
        }
    }
    Text {
        visible: root.model !== undefined && root.model.available && text !== ""
        text: root.model ? root.model.condition : ""
        color: "white"
        font.pixelSize: 13
    }
    Text {
        width: root.width
        wrapMode: Text.WordWrap
        visible: text !== ""
        text: root.model ? (root.model.available ? root.model.precipitation : root.model.unavailable) : ""
        color: "#a1a1a6"
        font.pixelSize: 12
    }
    Text {
        visible: root.model !== undefined && root.model.available && text !== ""
        text: root.model ? root.model.highLow : ""
        color: "white"
        font.pixelSize: 12
    }
    Text {
        visible: root.model !== undefined && root.model.available && text !== ""
        text: root.model ? root.model.sun : ""
        color: Appearance.tint("#ffd60a")
        font.pixelSize: 12
    }
    Text {
        width: root.width
        elide: Text.ElideRight
        text: root.model ? root.model.attribution : ""
        color: "#636366"
        font.pixelSize: 10
    }
}
