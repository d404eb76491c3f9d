import QtQuick

// A speaker drawn with lines, with sound waves, or a cross while muted. Drawn again only when
// `muted` changes.
Canvas {
    id: root

    property bool muted: false
    property color color: "white"

    implicitWidth: 16
    implicitHeight: 14
    onMutedChanged: requestPaint()

    onPaint: {
        const c = getContext("2d");
        const w = width, h = height;
        c.reset();
        c.fillStyle = root.color;
        c.strokeStyle = root.color;
        c.lineWidth = 1.5;
        c.beginPath();
        c.moveTo(0, h * 0.35);
        c.lineTo(w * 0.2, h * 0.35);
        c.lineTo(w * 0.45, h * 0.1);
        c.lineTo(w * 0.45, h * 0.9);
        c.lineTo(w * 0.2, h * 0.65);
        c.lineTo(0, h * 0.65);
        c.closePath();
        c.fill();
        c.beginPath();
        if (root.muted) {
            c.moveTo(w * 0.62, h * 0.32);
            c.lineTo(w * 0.92, h * 0.68);
            c.moveTo(w * 0.92, h * 0.32);
            c.lineTo(w * 0.62, h * 0.68);
        } else {
            c.arc(w * 0.45, h * 0.5, w * 0.25, -0.7, 0.7);
            c.moveTo(w * 0.45 + w * 0.45 * Math.cos(-0.7), h * 0.5 + w * 0.45 * Math.sin(-0.7));
            c.arc(w * 0.45, h * 0.5, w * 0.45, -0.7, 0.7);
        }
        c.stroke();
    }
}
