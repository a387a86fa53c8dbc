pragma ComponentBehavior: Bound

import QtQuick
import ZelmoraAtelier

// What is selected: a layer, or the document when no layer is. Both panels are kept once they are made.
Item {
    id: root

    required property SceneObjectAdapter sceneObjectAdapter
    required property DocumentPropertiesAdapter documentPropertiesAdapter
    required property size layerPixelSize
    required property string kind

    InspectorPanelLoader {
        anchors.fill: parent
        shown: !root.sceneObjectAdapter.hasSelection

        sourceComponent: DocumentPanel {
            documentPropertiesAdapter: root.documentPropertiesAdapter
        }
    }

    InspectorPanelLoader {
        anchors.fill: parent
        shown: root.sceneObjectAdapter.hasSelection

        sourceComponent: LayerSummary {
            sceneObjectAdapter: root.sceneObjectAdapter
            layerPixelSize: root.layerPixelSize
            kind: root.kind
        }
    }
}
