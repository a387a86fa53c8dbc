pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Templates as T // what all fields are, whatever the style
import ZelmoraAtelier

// The pane beside the canvas: a strip of tabs and below it the panel of the current one. Tabs of tools come and go with
// their tools; the first of the others is named after the selection.
Pane {
    id: root

    // Fixed numbers, which are not the order of the tabs.
    enum Panel {
        DrawTool,
        FillTool,
        PathTool,
        SelectionTool,
        CropTool,
        Info,
        Layer,
        Size,
        RelightTool
    }

    required property SceneObjectAdapter sceneObjectAdapter
    required property DocumentPropertiesAdapter documentAdapter
    // Of the selected layer; empty when there is none.
    required property size layerPixelSize
    required property WindowActions actions

    property bool positionedOnLeft: false

    property int currentPanel: Inspector.Info

    // The first of these that is active takes the tab.
    readonly property list<int> toolPrecedence: [Inspector.DrawTool, Inspector.FillTool, Inspector.SelectionTool,
        Inspector.CropTool, Inspector.RelightTool, Inspector.PathTool]
    readonly property list<int> activeTools: toolPrecedence.filter(
        panel => Array.from(tabs).some(tab => tab.panelIndex === panel && tab.available))

    // What is selected, in a word, and its icon.
    readonly property var selectionKind: {
        const adapter = sceneObjectAdapter
        if (!adapter.hasSelection)
            return { text: qsTr("Document"), icon: "tab_document" }
        if (adapter.isPaintLayer)
            return { text: qsTr("Paint Layer"), icon: "tab_paint_layer" }
        if (adapter.isImageLayer)
            return { text: qsTr("Image"), icon: "tab_image_layer" }
        if (adapter.isTextLayer)
            return { text: qsTr("Text"), icon: "tab_text_layer" }
        if (selectedLayer.layerType === "shape")
            return { text: qsTr("Shape"), icon: "tab_shape_layer" }
        return { text: qsTr("Layer"), icon: "tab_layers" }
    }

    property list<InspectorTab> tabs: [
        InspectorTab {
            panelIndex: Inspector.Info
            text: root.selectionKind.text
            iconName: root.selectionKind.icon
            panel: InfoPanel {
                sceneObjectAdapter: root.sceneObjectAdapter
                documentPropertiesAdapter: root.documentAdapter
                layerPixelSize: root.layerPixelSize
                kind: root.selectionKind.text
            }
        },
        InspectorTab {
            panelIndex: Inspector.Layer
            text: qsTr("Layer")
            iconName: "tab_layers"
            panel: LayerPanel {
                sceneObjectAdapter: root.sceneObjectAdapter
                actions: root.actions
            }
        },
        InspectorTab {
            panelIndex: Inspector.Size
            text: qsTr("Size")
            iconName: "tab_size"
            panel: SizePanel {
                sceneObjectAdapter: root.sceneObjectAdapter
                overlayModel: root.actions.context.selectionModel
            }
        }
    ]

    // A field has taken what was typed: keys may go to the canvas again.
    signal typingFinished()

    function activateInfoTab() {
        currentPanel = Inspector.Info
    }

    // Shows the panel of the tool that runs; from the panel of a tool that has ended it goes back to the info tab.
    function syncToolTabSelection() {
        if (activeTools.length > 0)
            currentPanel = activeTools[0]
        else if (toolPrecedence.includes(currentPanel))
            activateInfoTab()
    }

    // Takes over what is being typed. False if nothing is.
    function finishTyping(): bool {
        const typing = Window.activeFocusItem instanceof T.TextField
        if (typing)
            typingFinished()
        return typing
    }

    padding: 0
    implicitWidth: 300
    onActiveToolsChanged: syncToolTabSelection()
    Keys.onReturnPressed: event => event.accepted = finishTyping()
    Keys.onEnterPressed: event => event.accepted = finishTyping()

    background: Rectangle {
        color: Theme.surface

        Rectangle {
            x: root.positionedOnLeft ? parent.width - width : 0
            width: 1
            height: parent.height
            color: Theme.hairline
        }
    }

    SelectedLayerRow {
        id: selectedLayer

        model: root.sceneObjectAdapter.layerListModel
    }

    Item {
        anchors.fill: parent
        anchors.leftMargin: root.positionedOnLeft ? 0 : 1
        anchors.rightMargin: root.positionedOnLeft ? 1 : 0

        InspectorTabBar {
            id: tabBar

            width: parent.width
            tabs: root.tabs
            currentPanel: root.currentPanel
            onTabRequested: panelIndex => {
                root.finishTyping()
                root.currentPanel = panelIndex
            }
        }

        Repeater {
            model: root.tabs

            InspectorPanelLoader {
                required property InspectorTab modelData

                anchors.fill: parent
                anchors.topMargin: tabBar.height
                shown: root.currentPanel === modelData.panelIndex
                sourceComponent: modelData.panel
            }
        }
    }
}
