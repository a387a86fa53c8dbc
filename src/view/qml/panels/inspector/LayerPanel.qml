import QtQuick
import QtQuick.Layouts
import ZelmoraAtelier

// The selected layer's name and blending, and below it the list of all layers, which takes the height that is left.
Item {
    id: root

    required property SceneObjectAdapter sceneObjectAdapter
    required property WindowActions actions

    // A press beside the fields ends the edit of a field.
    TapHandler {
        onPressedChanged: {
            if (pressed)
                root.forceActiveFocus(Qt.MouseFocusReason)
        }
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.topMargin: Theme.spaceL
        spacing: Theme.spaceL

        InspectorSection {
            Layout.leftMargin: Theme.spaceL
            Layout.rightMargin: Theme.spaceL
            title: qsTr("Layer")
            separated: false

            // The form keeps its place without a selection, so that the list stays under the pointer.
            Item {
                Layout.fillWidth: true
                implicitHeight: form.implicitHeight

                InspectorHint {
                    anchors.fill: parent
                    visible: !root.sceneObjectAdapter.hasSelection
                    text: qsTr("Select a layer to manage it.")
                }

                LayerForm {
                    id: form

                    anchors.fill: parent
                    visible: root.sceneObjectAdapter.hasSelection
                    sceneObjectAdapter: root.sceneObjectAdapter
                }
            }
        }

        InspectorSection {
            Layout.leftMargin: Theme.spaceL
            Layout.rightMargin: Theme.spaceL
            title: qsTr("Layers")
            tools: [
                ZmSmallIconButton { action: root.actions.layers.moveUp },
                ZmSmallIconButton { action: root.actions.layers.moveDown },
                ZmSmallIconButton { action: root.actions.layers.removeLayer }
            ]
        }

        InspectorHint {
            Layout.leftMargin: Theme.spaceL
            Layout.rightMargin: Theme.spaceL
            visible: list.count === 0
            text: qsTr("No layers yet.")
        }

        LayerList {
            id: list

            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.topMargin: -Theme.spaceS
            sceneObjectAdapter: root.sceneObjectAdapter
            actions: root.actions
        }
    }
}
