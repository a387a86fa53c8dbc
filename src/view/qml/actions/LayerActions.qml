import QtQuick

// What adds layers, and what is done with the selected one.
QtObject {
    id: root

    required property ActionContext context
    readonly property EditorController editor: context.editor
    readonly property SceneObjectAdapter sceneAdapter: context.sceneAdapter
    readonly property var paintController: context.paintController      // see ActionContext
    readonly property bool editable: context.editable

    readonly property ZmAction addImage: ZmAction {
        text: qsTr("&Image")
        toolTip: qsTr("Insert an image as a new layer")
        icon.name: "insert_image"
        enabled: !OpenDialogs.anyFileDialog
        onTriggered: root.context.dialogs.openImageFileDialog()
    }

    readonly property ZmAction addExampleImage: ZmAction {
        text: qsTr("Insert &Example Image")
        icon.name: "open"
        enabled: root.context.forDevelopers
        onTriggered: {
            if (!root.editor.addExampleImage())
                root.context.dialogs.imageLoadErrorDialog.open()
            root.context.activateSelectionMode()
        }
    }

    readonly property ZmAction addText: ZmAction {
        text: qsTr("&Text")
        toolTip: qsTr("Insert a text layer")
        toolKey: "T"
        icon.name: "insert_text"
        enabled: !OpenDialogs.anyFileDialog
        onTriggered: {
            root.editor.addText()
            root.context.activateSelectionMode()
        }
    }

    readonly property ZmAction addShape: ZmAction {
        text: qsTr("&Shape")
        toolTip: qsTr("Insert a shape or sticker")
        toolKey: "U"
        icon.name: "insert_shape"
        enabled: !OpenDialogs.anyFileDialog
        onTriggered: root.context.dialogs.shapePickerDialog.open()
    }

    readonly property ZmAction addPaintLayer: ZmAction {
        text: qsTr("&New Paint Layer")
        shortcut: "Ctrl+Shift+N"
        enabled: root.editable && root.paintController !== null
        onTriggered: {
            if (root.context.report(root.paintController.addPaintLayer(), root.paintController))
                root.paintController.activateDrawMode()
        }
    }

    readonly property ZmAction toggleVisibility: ZmAction {
        text: root.sceneAdapter.hidden ? qsTr("Show Layer") : qsTr("Hide Layer")
        icon.name: root.sceneAdapter.hidden ? "visibility_on" : "visibility_off"
        enabled: root.editable && root.sceneAdapter.hasSelection
        onTriggered: root.sceneAdapter.hidden = !root.sceneAdapter.hidden
    }

    readonly property ZmAction moveUp: ZmAction {
        text: qsTr("Move Layer &Up")
        icon.name: "move_layer_up"
        enabled: root.editable && root.sceneAdapter.canMoveSelectionUp
        onTriggered: root.sceneAdapter.moveSelectionUp()
    }

    readonly property ZmAction moveDown: ZmAction {
        text: qsTr("Move Layer &Down")
        icon.name: "move_layer_down"
        enabled: root.editable && root.sceneAdapter.canMoveSelectionDown
        onTriggered: root.sceneAdapter.moveSelectionDown()
    }

    readonly property ZmAction removeLayer: ZmAction {
        text: qsTr("&Remove Layer")
        icon.name: "delete"
        enabled: root.editable && root.sceneAdapter.hasSelection
        onTriggered: root.sceneAdapter.deleteSelection()
    }

    readonly property ZmAction rasterize: ZmAction {
        text: qsTr("R&asterize Layer")
        icon.name: "add_paint_layer"
        enabled: root.editable && (root.paintController?.canRasterizeSelection ?? false)
        onTriggered: {
            root.context.commitTextEditing()
            root.context.report(root.paintController.rasterizeSelection(), root.paintController)
        }
    }

    readonly property ZmAction collapseDown: ZmAction {
        text: qsTr("&Merge with Layer Below")
        shortcut: "Ctrl+E"
        icon.name: "collapse_layer_down"
        enabled: root.editable && (root.paintController?.canCollapseSelectionDown ?? false)
        onTriggered: {
            root.context.commitTextEditing()
            root.context.report(root.paintController.collapseSelectionDown(), root.paintController)
        }
    }
}
