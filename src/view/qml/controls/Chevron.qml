import QtQuick
import QtQuick.Shapes

// A small arrow head that points down.
Shape {
    property alias color: line.strokeColor

    implicitWidth: 8
    implicitHeight: 5
    preferredRendererType: Shape.CurveRenderer

    ShapePath {
        id: line

        strokeWidth: 1.5
        fillColor: "transparent"
        capStyle: ShapePath.RoundCap
        joinStyle: ShapePath.RoundJoin
        startX: 0.75
        startY: 0.75
        PathLine { x: 4; y: 4 }
        PathLine { x: 7.25; y: 0.75 }
    }
}
