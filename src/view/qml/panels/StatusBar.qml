import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import ZelmoraAtelier // after QtQuick, which has a Canvas too

// The line below the canvas: the selected layer's size on the left, the zoom on the right.
Pane {
    id: root

    required property Canvas canvas
    required property WindowActions actions
    required property size layerPixelSize

    implicitHeight: 34
    padding: 0
    leftPadding: Theme.spaceL
    rightPadding: Theme.spaceS
    Accessible.role: Accessible.StatusBar
    Accessible.name: qsTr("Status bar")

    background: Rectangle {
        color: Theme.surface

        Rectangle {
            width: parent.width
            height: 1
            color: Theme.hairline
        }
    }

    RowLayout {
        anchors.fill: parent
        spacing: Theme.spaceXS

        Label {
            Layout.fillWidth: true
            elide: Text.ElideRight
            color: Theme.mutedText
            text: root.layerPixelSize.width > 0 && root.layerPixelSize.height > 0
                  ? qsTr("Layer: %1 × %2 px").arg(root.layerPixelSize.width).arg(root.layerPixelSize.height)
                  : qsTr("No layer selected")
        }

        ZmToolButton {
            action: root.actions.view.zoomOut
            text: qsTr("-")
            Accessible.name: toolTip
        }

        ZmToolButton {
            Layout.preferredWidth: Math.max(58, implicitWidth)
            action: root.actions.view.zoomToActualSize
            text: qsTr("%1%").arg(Math.round(root.canvas.zoom * 100))
            Accessible.name: toolTip
        }

        ZmToolButton {
            action: root.actions.view.zoomIn
            text: qsTr("+")
            Accessible.name: toolTip
        }
    }
}
