import QtQuick
import Tindra

// A weather symbol by its name ("sun.max.fill", "cloud.moon.rain.fill", ...), drawn once for
// each name and size: the sun or the moon, a cloud before it, and what falls from the cloud.
Canvas {
    id: root

    property string name
    property real size: 24

    width: root.size
    height: root.size
    onNameChanged: requestPaint()
    onSizeChanged: requestPaint()

    onPaint: {
        const c = getContext("2d");
        const s = root.size;
        const n = root.name;
        c.reset();
        const clouded = n.indexOf("cloud") === 0;
        const sky = n === "sun.max.fill" || n === "moon.stars.fill" || n.indexOf("cloud.sun") === 0
            || n.indexOf("cloud.moon") === 0;
        const night = n.indexOf("moon") >= 0;
        const falling = ["bolt", "snow", "sleet", "heavyrain", "drizzle", "rain", "fog"]
            .find(kind => n.indexOf(kind) >= 0);

        if (sky) {
            // Alone the sun or moon fills the symbol; behind a cloud it sits small, up right.
            const r = clouded ? s * 0.2 : s * 0.3;
            const x = clouded ? s * 0.66 : s * 0.5;
            const y = clouded ? s * 0.28 : s * 0.5;
            if (night) {
                c.fillStyle = "#fff1a8";
                c.beginPath();
                c.arc(x, y, r, 0, 2 * Math.PI);
                c.fill();
                c.globalCompositeOperation = "destination-out";
                c.beginPath();
                c.arc(x + r * 0.55, y - r * 0.35, r * 0.85, 0, 2 * Math.PI);
                c.fill();
                c.globalCompositeOperation = "source-over";
            } else {
                c.fillStyle = "#ffd60a";
                c.strokeStyle = "#ffd60a";
                c.lineWidth = Math.max(1, s * 0.06);
                c.beginPath();
                c.arc(x, y, r * 0.62, 0, 2 * Math.PI);
                c.fill();
                for (let i = 0; i < 8; ++i) {
                    const a = i * Math.PI / 4;
                    c.beginPath();
                    c.moveTo(x + Math.cos(a) * r * 0.85, y + Math.sin(a) * r * 0.85);
                    c.lineTo(x + Math.cos(a) * r * 1.25, y + Math.sin(a) * r * 1.25);
                    c.stroke();
                }
            }
        }
        if (clouded) {
            const top = falling ? s * 0.22 : s * 0.32;
            c.fillStyle = "#e5e5ea";
            c.beginPath();
            c.arc(s * 0.34, top + s * 0.22, s * 0.16, 0, 2 * Math.PI);
            c.arc(s * 0.52, top + s * 0.14, s * 0.2, 0, 2 * Math.PI);
            c.arc(s * 0.7, top + s * 0.24, s * 0.14, 0, 2 * Math.PI);
            c.fill();
            c.fillRect(s * 0.2, top + s * 0.22, s * 0.62, s * 0.16);
        }
        if (!falling) return;
        const y0 = s * 0.68;
        c.lineCap = "round";
        if (falling === "bolt") {
            c.fillStyle = "#ffd60a";
            c.beginPath();
            c.moveTo(s * 0.52, y0);
            c.lineTo(s * 0.4, y0 + s * 0.18);
            c.lineTo(s * 0.5, y0 + s * 0.18);
            c.lineTo(s * 0.44, s * 0.98);
            c.lineTo(s * 0.62, y0 + s * 0.12);
            c.lineTo(s * 0.52, y0 + s * 0.12);
            c.closePath();
            c.fill();
        } else if (falling === "fog") {
            c.strokeStyle = "#a1a1a6";
            c.lineWidth = Math.max(1, s * 0.06);
            for (let i = 0; i < 2; ++i) {
                c.beginPath();
                c.moveTo(s * 0.22, y0 + i * s * 0.12);
                c.lineTo(s * 0.8, y0 + i * s * 0.12);
                c.stroke();
            }
        } else {
            // Drops as short slanted strokes, flakes as dots; sleet has both.
            const count = falling === "heavyrain" ? 4 : 3;
            for (let i = 0; i < count; ++i) {
                const x = s * (0.3 + i * 0.4 / (count - 1));
                const flake = falling === "snow" || (falling === "sleet" && i % 2 === 0);
                if (flake) {
                    c.fillStyle = "#ffffff";
                    c.beginPath();
                    c.arc(x, y0 + s * 0.12, s * 0.05, 0, 2 * Math.PI);
                    c.fill();
                } else {
                    c.strokeStyle = "#64d2ff";
                    c.lineWidth = Math.max(1, s * (falling === "drizzle" ? 0.04 : 0.06));
                    c.beginPath();
                    c.moveTo(x + s * 0.04, y0);
                    c.lineTo(x - s * 0.04, y0 + s * (falling === "drizzle" ? 0.12 : 0.22));
                    c.stroke();
                }
            }
        }
    }
}
