import QtQuick
import QtQuick.Shapes

// Three quarters of a circle, which turn. The thread that draws turns them, even while the interface is held up.
Shape {
    id: root

    property bool turning: true
    property real strokeWidth: 3

    implicitWidth: 28
    implicitHeight: 28
    preferredRendererType: Shape.CurveRenderer

    ShapePath {
        strokeColor: Theme.accent
        strokeWidth: root.strokeWidth
        fillColor: "transparent"
        capStyle: ShapePath.RoundCap
        PathAngleArc {
            centerX: root.width / 2
            centerY: root.height / 2
            radiusX: root.width / 2 - 2
            radiusY: root.height / 2 - 2
            startAngle: 0
            sweepAngle: 270
        }
    }

    RotationAnimator on rotation {
        from: 0
        to: 360
        duration: 900
        loops: Animation.Infinite
        running: root.turning
    }
}
