import QtQuick
import Tindra

// The calendar section: the featured meeting with its time, countdown, departure advice and
// Join button; then today's agenda, all-day events first, those over greyed and the one under
// way marked; then the to-dos when reminders are on. Titles arrive already hidden in privacy
// mode.
Column {
    id: root

    property var model
    readonly property bool hasContent: root.model !== undefined && root.model.hasContent

    width: 230
    spacing: 6
    clip: true

    Item {
        visible: root.model !== undefined && root.model.featured
        width: root.width
        height: visible ? featuredColumn.height : 0

        Rectangle {
            id: featuredBar
            width: 4
            height: featuredColumn.height
            radius: 2
            color: Appearance.tint(root.model ? root.model.color : "#0a84ff")
        }
        Column {
            id: featuredColumn
            anchors.left: featuredBar.right
            anchors.leftMargin: 8
            anchors.right: parent.right
            spacing: 2

            Text {
                width: parent.width
                elide: Text.ElideRight
                text: root.model ? root.model.title : ""
                color: "white"
                font.pixelSize: 14
                font.weight: Font.DemiBold
            }
            Text {
                text: root.model ? root.model.timeRange + "  ·  " + root.model.countdown : ""
                color: root.model && root.model.started ? "#30d158" : "#a1a1a6"
                font.pixelSize: 12
            }
            Text {
                visible: text !== ""
                text: root.model ? root.model.departure : ""
                color: Appearance.tint("#ffd60a")
                font.pixelSize: 12
            }
            JoinButton {
                visible: root.model !== undefined && root.model.joinService !== ""
                service: root.model ? root.model.joinService : ""
                onClicked: root.model.join(root.model.featuredID)
            }
        }
    }

    Text {
        text: qsTr("Today")
        color: "#a1a1a6"
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
    Text {
        visible: root.model !== undefined && root.model.agenda.length === 0
        text: qsTr("Nothing else today")
        color: "#636366"
        font.pixelSize: 12
    }
    // Rows are made only while the section is seen: a calendar that changes while the notch is
    // closed costs the event loop nothing.
    Repeater {
        model: root.model && root.visible ? root.model.agenda : []
        delegate: Row {
            id: agendaRow
            required property var modelData
            spacing: 6
            opacity: modelData.status === "ended" ? 0.45 : 1

            Rectangle {
                id: agendaBar
                anchors.verticalCenter: parent.verticalCenter
                width: 3
                height: 12
                radius: 1.5
                color: modelData.color
            }
            Text {
                id: agendaTime
                width: 74
                anchors.verticalCenter: parent.verticalCenter
                text: modelData.time
                color: modelData.status === "now" ? "#30d158" : "#a1a1a6"
                font.pixelSize: 11
            }
            // The title takes what the button (its words differ by language) leaves.
            Text {
                width: root.width - agendaBar.width - agendaTime.width - 2 * agendaRow.spacing
                    - (agendaJoin.visible ? agendaJoin.width + agendaRow.spacing : 0)
                anchors.verticalCenter: parent.verticalCenter
                elide: Text.ElideRight
                text: modelData.title
                color: "white"
                font.pixelSize: 12
                font.weight: modelData.status === "now" ? Font.DemiBold : Font.Normal
            }
            JoinButton {
                id: agendaJoin
                anchors.verticalCenter: parent.verticalCenter
                visible: modelData.joinService !== "" && modelData.status !== "ended"
                compact: true
                service: modelData.joinService
                onClicked: root.model.join(modelData.id)
            }
        }
    }

    Text {
        visible: root.model !== undefined && root.model.reminders.length > 0
        text: qsTr("Reminders")
        color: "#a1a1a6"
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
    Repeater {
        model: root.model && root.visible ? root.model.reminders : []
        delegate: Row {
            required property var modelData
            spacing: 6
            opacity: modelData.done ? 0.45 : 1

            Text {
                text: modelData.done ? "✓" : "○"
                color: modelData.color
                font.pixelSize: 12
            }
            Text {
                width: 130
                elide: Text.ElideRight
                text: modelData.title
                color: "white"
                font.pixelSize: 12
                font.strikeout: modelData.done
            }
            Text {
                text: modelData.due
                color: "#a1a1a6"
                font.pixelSize: 11
            }
        }
    }
}
