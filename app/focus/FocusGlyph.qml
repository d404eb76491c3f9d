import QtQuick
import Tindra

// A Focus symbol drawn with a few strokes: moon, person, briefcase, bed, car, book, game
// controller or a figure at rest. Drawn again only when the symbol changes.
Canvas {
    id: root

    property string symbol: "moon"
    property color color: "#7d7aff"

    implicitWidth: 18
    implicitHeight: 18
    onSymbolChanged: requestPaint()

    onPaint: {
        const c = getContext("2d");
        const w = width, h = height, s = Math.min(w, h);
        c.reset();
        c.strokeStyle = root.color;
        c.fillStyle = root.color;
        c.lineWidth = 1.6;
        c.lineCap = "round";
        c.lineJoin = "round";
        const circle = (x, y, r) => { c.beginPath(); c.arc(x, y, r, 0, 2 * Math.PI); c.fill(); };
        const box = (x, y, bw, bh) => { c.beginPath(); c.roundedRect(x, y, bw, bh, s * 0.08, s * 0.08); };
        switch (root.symbol) {
        case "person":
            circle(w / 2, h * 0.3, s * 0.2);
            c.beginPath();
            c.arc(w / 2, h * 0.95, s * 0.38, Math.PI, 2 * Math.PI);
            c.fill();
            break;
        case "briefcase":
            box(w * 0.1, h * 0.32, w * 0.8, h * 0.55);
            c.fill();
            c.beginPath();
            c.rect(w * 0.35, h * 0.15, w * 0.3, h * 0.17);
            c.stroke();
            break;
        case "bed":
            box(w * 0.05, h * 0.5, w * 0.9, h * 0.25);
            c.fill();
            box(w * 0.12, h * 0.3, w * 0.3, h * 0.2);
            c.fill();
            c.beginPath();
            c.moveTo(w * 0.08, h * 0.3); c.lineTo(w * 0.08, h * 0.9);
            c.moveTo(w * 0.92, h * 0.75); c.lineTo(w * 0.92, h * 0.9);
            c.stroke();
            break;
        case "car":
            box(w * 0.05, h * 0.42, w * 0.9, h * 0.3);
            c.fill();
            c.beginPath();
            c.moveTo(w * 0.2, h * 0.42); c.lineTo(w * 0.32, h * 0.2);
            c.lineTo(w * 0.68, h * 0.2); c.lineTo(w * 0.8, h * 0.42);
            c.stroke();
            circle(w * 0.27, h * 0.78, s * 0.1);
            circle(w * 0.73, h * 0.78, s * 0.1);
            break;
        case "book":
            c.beginPath();
            c.moveTo(w / 2, h * 0.25);
            c.quadraticCurveTo(w * 0.3, h * 0.12, w * 0.08, h * 0.2);
            c.lineTo(w * 0.08, h * 0.85);
            c.quadraticCurveTo(w * 0.3, h * 0.78, w / 2, h * 0.9);
            c.quadraticCurveTo(w * 0.7, h * 0.78, w * 0.92, h * 0.85);
            c.lineTo(w * 0.92, h * 0.2);
            c.quadraticCurveTo(w * 0.7, h * 0.12, w / 2, h * 0.25);
            c.lineTo(w / 2, h * 0.9);
            c.stroke();
            break;
        case "gamecontroller":
            box(w * 0.05, h * 0.3, w * 0.9, h * 0.45);
            c.fill();
            c.strokeStyle = "black";
            c.beginPath();
            c.moveTo(w * 0.2, h * 0.52); c.lineTo(w * 0.38, h * 0.52);
            c.moveTo(w * 0.29, h * 0.42); c.lineTo(w * 0.29, h * 0.62);
            c.stroke();
            c.fillStyle = "black";
            circle(w * 0.68, h * 0.46, s * 0.05);
            circle(w * 0.78, h * 0.58, s * 0.05);
            break;
        case "figure":
            circle(w / 2, h * 0.18, s * 0.13);
            c.beginPath();
            c.moveTo(w / 2, h * 0.35); c.lineTo(w / 2, h * 0.62);
            c.moveTo(w * 0.12, h * 0.42); c.quadraticCurveTo(w / 2, h * 0.55, w * 0.88, h * 0.42);
            c.moveTo(w * 0.15, h * 0.85); c.quadraticCurveTo(w / 2, h * 0.55, w * 0.85, h * 0.85);
            c.stroke();
            break;
        default:  // moon
            c.beginPath();
            c.arc(w / 2, h / 2, s * 0.42, 0.35 * Math.PI, 1.65 * Math.PI, false);
            c.arc(w * 0.72, h * 0.36, s * 0.34, 1.25 * Math.PI, 0.55 * Math.PI, true);
            c.closePath();
            c.fill();
        }
    }
}
