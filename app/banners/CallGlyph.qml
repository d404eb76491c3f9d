import QtQuick
import Tindra

// A telephone handset, green, for a ringing or missed call.
Canvas {
    id: root

    property color color: "#30d158"

    implicitWidth: 18
    implicitHeight: 18

    onPaint: {
        const c = getContext("2d");
        const w = width, h = height;
        c.reset();
        c.fillStyle = root.color;
        c.beginPath();
        c.moveTo(w * 0.12, h * 0.2);
        c.quadraticCurveTo(w * 0.22, h * 0.08, w * 0.34, h * 0.12);
        c.lineTo(w * 0.42, h * 0.3);
        c.quadraticCurveTo(w * 0.42, h * 0.38, w * 0.34, h * 0.42);
        c.quadraticCurveTo(w * 0.44, h * 0.6, w * 0.58, h * 0.66);
        c.quadraticCurveTo(w * 0.62, h * 0.58, w * 0.7, h * 0.58);
        c.lineTo(w * 0.88, h * 0.66);
        c.quadraticCurveTo(w * 0.92, h * 0.78, w * 0.8, h * 0.88);
        c.quadraticCurveTo(w * 0.4, h * 0.9, w * 0.14, h * 0.5);
        c.quadraticCurveTo(w * 0.04, h * 0.32, w * 0.12, h * 0.2);
        c.fill();
    }
}
