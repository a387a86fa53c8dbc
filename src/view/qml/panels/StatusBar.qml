import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import ZelmoraAtelier // after QtQuick, which has a Canvas too

// The line below the canvas: the selected layer's size on the left, the zoom on the right.
Pane {
    id: root

    required property Canvas canvas
    required property size layerPixelSize

    implicitHeight: 34
    padding: 0
    leftPadding: 12
    rightPadding: 8

    background: Rectangle {
        color: root.palette.window

        Rectangle {
            width: parent.width
            height: 1
            color: root.palette.mid
            opacity: 0.5
        }
    }

    RowLayout {
        anchors.fill: parent
        spacing: 2

        Label {
            Layout.fillWidth: true
            elide: Text.ElideRight
            text: root.layerPixelSize.width > 0 && root.layerPixelSize.height > 0
                  ? qsTr("Layer: %1 × %2 px").arg(root.layerPixelSize.width).arg(root.layerPixelSize.height)
                  : qsTr("No layer selected")
        }

        ZmToolButton {
            text: "-"
            toolTip: qsTr("Zoom out")
            enabled: root.canvas.canZoomOut
            onClicked: root.canvas.zoomOut()
        }

        ZmToolButton {
            Layout.preferredWidth: Math.max(60, implicitWidth)
            text: qsTr("%1%").arg(Math.round(root.canvas.zoom * 100))
            toolTip: qsTr("Reset zoom to 100%")
            onClicked: root.canvas.setZoom(1.0)
        }

        ZmToolButton {
            text: "+"
            toolTip: qsTr("Zoom in")
            enabled: root.canvas.canZoomIn
            onClicked: root.canvas.zoomIn()
        }
    }
}
