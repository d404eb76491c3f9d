import QtQuick
import Tindra

// The indicator's symbol, drawn with lines: a speaker (with one to three waves, or a cross when
// silent), a sun (short or long rays), an external display, or a keyboard light (dim or bright).
// `name` is the symbol name the view model gives ("speaker.wave.2.fill", "sun.max.fill",
// "display", "light.min", ...). Drawn again only when the name changes.
Canvas {
    id: root

    property string name: "speaker.wave.2.fill"
    property color color: "white"

    implicitWidth: 18
    implicitHeight: 16
    onNameChanged: requestPaint()
    onColorChanged: requestPaint()

    function speaker(c, w, h) {
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
        if (root.name === "speaker.slash.fill") {
            c.moveTo(w * 0.62, h * 0.32);
            c.lineTo(w * 0.92, h * 0.68);
            c.moveTo(w * 0.92, h * 0.32);
            c.lineTo(w * 0.62, h * 0.68);
        } else {
            const waves = root.name === "speaker.wave.3.fill" ? 3 : root.name === "speaker.wave.2.fill" ? 2 : 1;
            for (let i = 0; i < waves; ++i) {
                const r = w * (0.16 + 0.15 * i);
                c.moveTo(w * 0.5 + r * Math.cos(-0.75), h * 0.5 + r * Math.sin(-0.75));
                c.arc(w * 0.5, h * 0.5, r, -0.75, 0.75);
            }
        }
        c.stroke();
    }

    function sun(c, w, h, longRays) {
        const cx = w / 2, cy = h / 2, core = Math.min(w, h) * 0.2;
        c.beginPath();
        c.arc(cx, cy, core, 0, 2 * Math.PI);
        c.fill();
        c.beginPath();
        for (let i = 0; i < 8; ++i) {
            const a = i * Math.PI / 4;
            const from = core + 2, to = core + (longRays ? Math.min(w, h) * 0.3 : Math.min(w, h) * 0.16);
            c.moveTo(cx + from * Math.cos(a), cy + from * Math.sin(a));
            c.lineTo(cx + to * Math.cos(a), cy + to * Math.sin(a));
        }
        c.stroke();
    }

    function display(c, w, h) {
        c.strokeRect(1, 1, w - 2, h * 0.68);
        c.beginPath();
        c.moveTo(w * 0.5, h * 0.7);
        c.lineTo(w * 0.5, h * 0.9);
        c.moveTo(w * 0.28, h * 0.92);
        c.lineTo(w * 0.72, h * 0.92);
        c.stroke();
    }

    // A key with a light above it: short rays when dim, long ones when bright.
    function keyboardLight(c, w, h, bright) {
        c.strokeRect(w * 0.12, h * 0.55, w * 0.76, h * 0.38);
        c.beginPath();
        const cx = w / 2, cy = h * 0.42;
        for (let i = 0; i < 5; ++i) {
            const a = Math.PI + i * Math.PI / 4;
            const from = h * 0.12, to = bright ? h * 0.4 : h * 0.26;
            c.moveTo(cx + from * Math.cos(a), cy + from * Math.sin(a));
            c.lineTo(cx + to * Math.cos(a), cy + to * Math.sin(a));
        }
        c.stroke();
    }

    onPaint: {
        const c = getContext("2d");
        c.reset();
        c.fillStyle = root.color;
        c.strokeStyle = root.color;
        c.lineWidth = 1.5;
        c.lineCap = "round";
        if (root.name.startsWith("speaker")) speaker(c, width, height);
        else if (root.name.startsWith("sun")) sun(c, width, height, root.name === "sun.max.fill");
        else if (root.name === "display") display(c, width, height);
        else if (root.name.startsWith("light")) keyboardLight(c, width, height, root.name === "light.max");
    }
}
