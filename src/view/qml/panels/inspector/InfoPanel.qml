import QtQuick
import ZelmoraAtelier

// What is selected: a layer, or the document when no layer is.
Loader {
    id: root

    required property SceneObjectAdapter sceneObjectAdapter
    required property DocumentPropertiesAdapter documentPropertiesAdapter
    required property size layerPixelSize
    required property string kind

    sourceComponent: sceneObjectAdapter.hasSelection ? layerSummary : documentPanel

    Component {
        id: documentPanel

        DocumentPanel {
            documentPropertiesAdapter: root.documentPropertiesAdapter
        }
    }

    Component {
        id: layerSummary

        LayerSummary {
            sceneObjectAdapter: root.sceneObjectAdapter
            layerPixelSize: root.layerPixelSize
            kind: root.kind
        }
    }
}
