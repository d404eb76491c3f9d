import QtQuick
import Tindra

// The notch's QML scene: the compact views written in QML, the panel while opened and the menu
// drawn inside. The window draws the outline beneath it. Geometry comes from the window (`notch`),
// which also cuts its mask from it; what is shown comes from `content`, the same for every
// display.
Item {
    id: root

    required property NotchWindow notch
    required property NotchContent content

    // Closed: the activity's compact view on the two ears, where it is written in QML. The
    // window draws the outline under this scene, and the compact views written in C++.
    Item {
        id: compact
        x: root.notch.shapeRect.x
        y: 0
        width: root.notch.shapeRect.width
        height: root.notch.notchRect.height
        opacity: Math.max(0, Math.min(root.notch.compactProgress, 1 - root.notch.openProgress * 2))
        visible: opacity > 0

        Loader {
            anchors.fill: parent
            active: root.content.compactSource.toString() !== ""
            source: root.content.compactSource
            onLoaded: item.model = Qt.binding(() => root.content.compactModel)
        }
    }

    // Opened: the idle layout at rest on the left, then a section for each subsystem that has
    // something to show (or is pinned). While a transient section has something (a level just
    // changed), it stands there alone. A section that does not fit whole is left out rather than
    // cut off at the edge; the activity's own section comes first, then pinned order.
    // The views are made the first time the notch opens, not when the scene is made for a
    // compact view: many days nobody opens it. Once made they stay as long as the scene.
    Item {
        id: panel

        property bool made: false

        Connections {
            target: root.notch
            function onExpandedChanged(expanded) {
                if (expanded) panel.made = true
            }
        }

        readonly property bool transientShown: root.content.sections.some(
            section => section.transient && section.model.showing)
        // Which sections are drawn: the one of the activity on show first, if it fits, then
        // the others in their order while there is room, and last the views that are drawn
        // only beside others of their section, when those are.
        readonly property var fitting: {
            let room = row.width - idle.width
            const need = []
            for (let i = 0; i < sections.count; ++i) {
                const loader = sections.itemAt(i)
                need.push(loader && loader.wanted ? loader.item.width + row.spacing : -1)
            }
            const fits = need.map(() => false)
            const take = i => {
                fits[i] = need[i] > 0 && need[i] <= room
                if (fits[i]) room -= need[i]
            }
            const current = root.content.sections.findIndex(
                section => section.model === root.content.compactModel)
            const besideOthersOnly = i => sections.itemAt(i)?.besideOthersOnly === true
            const othersFit = i => fits.some((fit, j) => fit && j !== i
                && root.content.sections[j].name === root.content.sections[i].name)
            if (current >= 0 && current < need.length && !besideOthersOnly(current)) take(current)
            for (let i = 0; i < need.length; ++i) {
                if (i !== current && need[i] > 0 && !besideOthersOnly(i)) take(i)
            }
            for (let i = 0; i < need.length; ++i) {
                if (need[i] > 0 && besideOthersOnly(i) && othersFit(i)) take(i)
            }
            return fits
        }

        x: root.notch.shapeRect.x
        y: root.notch.notchRect.height
        width: root.notch.shapeRect.width
        height: Math.max(0, root.notch.shapeRect.height - root.notch.notchRect.height)
        clip: true
        opacity: Math.max(0, Math.min(1, (root.notch.openProgress - 0.35) / 0.5))
        visible: opacity > 0

        Row {
            id: row
            objectName: "sectionRow"
            anchors.fill: parent
            anchors.margins: 14
            anchors.topMargin: 6
            spacing: 14

            Loader {
                id: idle
                height: parent.height
                active: panel.made
                sourceComponent: IdleLayout {
                    content: root.content
                }
            }
            Repeater {
                id: sections
                model: root.content.sections
                delegate: Loader {
                    id: section
                    required property var modelData
                    required property int index
                    readonly property bool wanted: item !== null && (modelData.transient
                        ? item.hasContent
                        : (modelData.pinned || item.hasContent) && !panel.transientShown)
                    // A view that repeats what the idle layout says (the machine's battery) is
                    // drawn only beside the others of its section (the accessories), or pinned.
                    readonly property bool besideOthersOnly: item !== null && !modelData.pinned
                        && item.onlyBesideOthers === true
                    height: parent.height
                    visible: panel.fitting[index] === true
                    function make() {
                        if (panel.made && source.toString() === "")
                            setSource(modelData.source, { model: modelData.model })
                    }
                    Component.onCompleted: make()
                    Connections {
                        target: panel
                        function onMadeChanged() { section.make() }
                    }
                }
            }
        }
    }

    NotchMenu {
        notch: root.notch
    }
}
