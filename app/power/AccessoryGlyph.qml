import QtQuick
import Tindra

// An accessory's picture, drawn with lines by its kind: earbuds, over-ear headphones, a speaker,
// or a plain rounded device for anything else. Drawn again only when the kind or size changes.
Canvas {
    id: root

    property string kind: "other"
    property color color: "white"

    implicitWidth: 22
    implicitHeight: 18
    onKindChanged: requestPaint()
    onWidthChanged: requestPaint()
    onHeightChanged: requestPaint()

    readonly property bool earbuds: kind.startsWith("airPods") && kind !== "airPodsMax"
                                    || kind === "beatsStudioBuds"
    readonly property bool overEar: kind === "airPodsMax" || kind === "beatsStudio"
                                    || kind === "beatsSolo" || kind === "beats" || kind === "headphones"

    onPaint: {
        const c = getContext("2d");
        const w = width, h = height;
        c.reset();
        c.strokeStyle = root.color;
        c.fillStyle = root.color;
        c.lineWidth = 1.5;
        c.lineCap = "round";
        if (root.earbuds) {
            for (const x of [w * 0.3, w * 0.7]) {
                c.beginPath();
                c.arc(x, h * 0.3, w * 0.13, 0, 2 * Math.PI);
                c.fill();
                c.beginPath();
                c.moveTo(x, h * 0.4);
                c.lineTo(x, h * 0.9);
                c.stroke();
            }
        } else if (root.overEar) {
            c.beginPath();
            c.arc(w / 2, h * 0.55, w * 0.38, Math.PI, 2 * Math.PI);
            c.stroke();
            c.fillRect(w * 0.06, h * 0.5, w * 0.18, h * 0.42);
            c.fillRect(w * 0.76, h * 0.5, w * 0.18, h * 0.42);
        } else if (root.kind === "speaker") {
            c.strokeRect(w * 0.22, h * 0.05, w * 0.56, h * 0.9);
            c.beginPath();
            c.arc(w / 2, h * 0.62, w * 0.16, 0, 2 * Math.PI);
            c.stroke();
            c.beginPath();
            c.arc(w / 2, h * 0.25, w * 0.06, 0, 2 * Math.PI);
            c.fill();
        } else {
            c.beginPath();
            c.roundedRect(w * 0.28, h * 0.08, w * 0.44, h * 0.84, 3, 3);
            c.stroke();
        }
    }
}
