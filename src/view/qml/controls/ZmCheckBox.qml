import QtQuick
import QtQuick.Controls
import QtQuick.Shapes

CheckBox {
    id: root

    implicitHeight: Theme.controlHeight
    padding: 0
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
                                       : root.hovered ? Qt.alpha(Theme.text, 0.45) : Theme.outline

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
