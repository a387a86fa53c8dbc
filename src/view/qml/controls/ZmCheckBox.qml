import QtQuick
import QtQuick.Shapes
import QtQuick.Templates as T

T.CheckBox {
    id: root

    implicitWidth: Math.max(implicitIndicatorWidth, implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Theme.controlHeight
    spacing: Theme.spaceM
    opacity: enabled ? 1 : Theme.disabledOpacity
    Accessible.name: text

    indicator: Rectangle {
        x: root.text ? root.leftPadding : (root.width - width) / 2
        y: (root.height - height) / 2
        implicitWidth: 16
        implicitHeight: 16
        radius: 4
        color: root.checked ? Theme.accent : Theme.sunken
        border.width: root.visualFocus ? Theme.focusWidth : root.checked ? 0 : 1
        border.color: root.visualFocus ? (root.checked ? Theme.text : Theme.accent)
                                       : root.hovered ? Theme.strongOutline : Theme.outline

        Shape {
            anchors.fill: parent
            visible: root.checked
            preferredRendererType: Shape.CurveRenderer

            ShapePath {
                strokeColor: Theme.accentText
                strokeWidth: 1.8
                fillColor: "transparent"
                capStyle: ShapePath.RoundCap
                joinStyle: ShapePath.RoundJoin
                startX: 4
                startY: 8.3
                PathLine { x: 6.9; y: 11.2 }
                PathLine { x: 12; y: 5.2 }
            }
        }
    }

    contentItem: Text {
        leftPadding: root.text ? root.indicator.width + root.spacing : 0
        text: root.text
        font: root.font
        color: Theme.text
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
}
