import QtQuick
import Tindra

// The calendar section: the featured meeting with its time, countdown, departure advice and
// Join button; then today's agenda, all-day events first, those over greyed and the one under
// way marked; then the to-dos when reminders are on. Titles arrive already hidden in privacy
// mode. The section is as tall as the panel: rows that do not fit are counted in a last line
// rather than cut at the edge, today's events before the to-dos, and of those the ones already
// over given up first.
Column {
    id: root

    property var model
    readonly property bool hasContent: root.model !== undefined && root.model.hasContent
    readonly property int rowHeight: 16
    // Today's events but the featured meeting, which is drawn in full above.
    readonly property var rest: root.model ? root.model.agenda.filter(
        event => !(root.model.featured && event.id === root.model.featuredID)) : []
    // The agenda rows and to-dos drawn, and how many are left out.
    readonly property var shown: {
        const agenda = root.rest
        const reminders = root.model ? root.model.reminders : []
        const above = featured.height + (featured.height > 0 ? root.spacing : 0) + today.height
            + root.spacing + (root.rest.length === 0 ? nothingElse.height + root.spacing : 0)
        let room = Math.floor((root.height - above + list.spacing) / (root.rowHeight + list.spacing))
        const wanted = agenda.length + (reminders.length > 0 ? 1 + reminders.length : 0)
        if (wanted <= room) return { agenda: agenda, reminders: reminders, more: 0 }
        room = Math.max(0, room - 1)  // the line that counts the rest
        let kept = agenda.slice()
        while (kept.length > room && kept.some(event => event.status === "ended"))
            kept.splice(kept.findIndex(event => event.status === "ended"), 1)
        kept = kept.slice(0, room)
        room -= kept.length
        // The heading takes a row of its own.
        const keptReminders = room >= 2 ? reminders.slice(0, room - 1) : []
        return {
            agenda: kept,
            reminders: keptReminders,
            more: agenda.length - kept.length + reminders.length - keptReminders.length
        }
    }

    width: 230
    spacing: 4
    clip: true

    Item {
        id: featured
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
        id: today
        text: qsTr("Today")
        color: "#a1a1a6"
        font.pixelSize: 12
        font.weight: Font.DemiBold
    }
    Text {
        id: nothingElse
        visible: root.model !== undefined && root.rest.length === 0
        text: qsTr("Nothing else today")
        color: "#636366"
        font.pixelSize: 12
    }
    // Today's rows, the to-dos and the count of those left out, closer together than the rest.
    Column {
        id: list
        spacing: 1

        // The time column is as wide as the longest time drawn ("11:30 AM–12:30 PM" where the
        // clock has 12 hours); the titles take the rest.
        readonly property real timeWidth: Math.max(74, Math.ceil(longestTime.advanceWidth) + 2)
        TextMetrics {
            id: longestTime
            font.pixelSize: 11
            text: root.shown.agenda.reduce(
                (longest, event) => event.time.length > longest.length ? event.time : longest, "")
        }

        // Rows are made only while the section is seen: a calendar that changes while the notch is
        // closed costs the event loop nothing.
        Repeater {
            model: root.visible ? root.shown.agenda : []
            delegate: Row {
                id: agendaRow
                required property var modelData
                height: root.rowHeight
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
                    width: list.timeWidth
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
            visible: root.shown.reminders.length > 0
            height: root.rowHeight
            verticalAlignment: Text.AlignVCenter
            text: qsTr("Reminders")
            color: "#a1a1a6"
            font.pixelSize: 12
            font.weight: Font.DemiBold
        }
        Repeater {
            model: root.visible ? root.shown.reminders : []
            delegate: Row {
                required property var modelData
                height: root.rowHeight
                spacing: 6
                opacity: modelData.done ? 0.45 : 1

                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    text: modelData.done ? "✓" : "○"
                    color: modelData.color
                    font.pixelSize: 12
                }
                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 130
                    elide: Text.ElideRight
                    text: modelData.title
                    color: "white"
                    font.pixelSize: 12
                    font.strikeout: modelData.done
                }
                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    text: modelData.due
                    color: "#a1a1a6"
                    font.pixelSize: 11
                }
            }
        }
        Text {
            visible: root.shown.more > 0
            height: root.rowHeight
            verticalAlignment: Text.AlignVCenter
            text: qsTr("%n more", "", root.shown.more)
            color: "#8e8e93"
            font.pixelSize: 11
        }
    }
}
