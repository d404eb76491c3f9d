import QtQuick
import Tindra

// The call or message in the opened notch: a ringing call says only that it rings (answer it on
// the desktop's banner); a message or missed call shows its sender, its text and a button that
// opens the application that sent it.
Column {
    id: root

    property var model
    readonly property bool hasContent: root.model !== undefined && root.model.showing
    readonly property bool ringing: root.model !== undefined && root.model.ringing

    width: 260
    spacing: 6

    Row {
        spacing: 8
        CallGlyph {
            anchors.verticalCenter: parent.verticalCenter
            width: 16
            height: 16
            visible: root.ringing || (root.model !== undefined && root.model.missedCall)
            color: root.ringing ? "#30d158" : "#ff453a"
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: {
                if (!root.model) return "";
                if (root.ringing) return qsTr("%1 call").arg(root.model.callApp);
                return root.model.missedCall ? qsTr("Missed call · %1").arg(root.model.app)
                                             : root.model.app;
            }
            textFormat: Text.PlainText
            color: "#a1a1a6"
            font.pixelSize: 12
            font.weight: Font.DemiBold
        }
    }
    Text {
        width: root.width
        elide: Text.ElideRight
        textFormat: Text.PlainText
        text: root.ringing ? qsTr("Ringing") : (root.model ? root.model.title : "")
        color: "white"
        font.pixelSize: 16
        font.weight: Font.DemiBold
    }
    Text {
        width: root.width
        visible: !root.ringing && text !== ""
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
        textFormat: Text.PlainText
        text: root.model ? root.model.body : ""
        color: "#d1d1d6"
        font.pixelSize: 13
    }
    JoinButton {
        visible: !root.ringing && root.model !== undefined && root.model.openText !== ""
        label: root.model ? root.model.openText : ""
        onClicked: root.model.open()
    }
}
