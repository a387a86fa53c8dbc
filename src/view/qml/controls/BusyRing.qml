import QtQuick
import QtQuick.Shapes

// Turns while something runs, but says nothing of work that is over at once.
Item {
    id: root

    property bool running: false
    property bool shown: false

    implicitWidth: 28
    implicitHeight: 28
    visible: shown
    onRunningChanged: {
        if (!running)
            shown = false
    }
    Accessible.role: Accessible.Indicator
    Accessible.name: qsTr("Busy")

    Timer {
        interval: Theme.busyDelayMs
        running: root.running && !root.shown
        onTriggered: root.shown = true
    }

    Shape {
        anchors.fill: parent
        preferredRendererType: Shape.CurveRenderer

        ShapePath {
            strokeColor: Theme.accent
            strokeWidth: 3
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
            running: root.visible
        }
    }
}
