import QtQuick
import QtQuick.Layouts
import ZelmoraAtelier

// What the selected layer is: its look, kind, size and place.
ZmInspectorPanel {
    id: root

    required property SceneObjectAdapter sceneObjectAdapter
    required property size layerPixelSize
    required property string kind

    SelectedLayerRow {
        id: selection

        model: root.sceneObjectAdapter.layerListModel
    }

    InspectorSection {
        title: root.sceneObjectAdapter.name
        separated: false

        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 168
            radius: Theme.radius
            color: Theme.hoverFill

            LayerThumbnail {
                anchors.fill: parent
                anchors.margins: Theme.spaceM
                checkerSize: 8
                keepsWhileLoading: true
                source: selection.thumbnailSource
                Accessible.role: Accessible.Graphic
                Accessible.name: qsTr("Look of the layer")
            }
        }

        Fact {
            Layout.topMargin: Theme.spaceS
            label: qsTr("Kind")
            fact: root.kind
        }

        Fact {
            label: qsTr("Size")
            visible: root.layerPixelSize.width > 0 && root.layerPixelSize.height > 0
            fact: qsTr("%1 × %2 px").arg(root.layerPixelSize.width).arg(root.layerPixelSize.height)
        }

        Fact {
            label: qsTr("Position")
            fact: qsTr("%1, %2 px").arg(Math.round(root.sceneObjectAdapter.positionX))
                                   .arg(Math.round(root.sceneObjectAdapter.positionY))
        }
    }

    component Fact: InspectorRow {
        property alias fact: value.text

        ZmLabel {
            id: value

            Layout.fillWidth: true
            wrapMode: Text.Wrap
        }
    }
}
