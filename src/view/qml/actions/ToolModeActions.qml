import QtQuick
import ZelmoraAtelier

// The tools that a press on the canvas may belong to.
QtObject {
    id: root

    required property ActionContext context
    readonly property var selectionModel: context.selectionModel    // see ActionContext
    readonly property var paintController: context.paintController
    readonly property bool editable: context.editable

    function togglePathEdit() {
        if (pathEdit.active) {
            context.activateSelectionMode()
            return
        }
        const startNewContour = !context.shapeAdapter?.isShapeLayer
        if (!startNewContour || context.editor.addPath())
            selectionModel.activatePathEditMode(startNewContour)
    }

    readonly property ModeAction selection: ModeAction {
        text: qsTr("&Select")
        toolTip: qsTr("Select layers")
        toolKey: "V"
        icon.name: "select_tool"
        active: root.context.editorState.mode === EditorStateModel.EditorMode.Transform
        enabled: root.editable
        onChosen: root.context.activateSelectionMode()
    }

    readonly property ModeAction skew: ModeAction {
        text: qsTr("S&kew")
        toolTip: qsTr("Skew the selected layer")
        toolKey: "K"
        icon.name: "skew"
        active: root.selectionModel?.skewActive ?? false
        enabled: root.selectionModel !== null && root.context.sceneAdapter.hasSelection
        onChosen: root.selectionModel.activateSkewMode()
    }

    readonly property ModeAction crop: ModeAction {
        text: qsTr("&Crop")
        toolTip: qsTr("Crop the selected layer")
        toolKey: "C"
        icon.name: "crop"
        active: root.selectionModel?.cropActive ?? false
        enabled: root.selectionModel?.cropAvailable ?? false
        onChosen: root.selectionModel.activateCropMode()
    }

    readonly property ModeAction pathEdit: ModeAction {
        text: qsTr("&Path")
        toolTip: qsTr("Edit the selected shape path, or draw a new path")
        toolKey: "P"
        icon.name: "path_edit"
        active: (root.selectionModel?.pathEditActive ?? false) && !root.selectionModel.rasterSelectionEditActive
        enabled: root.editable && root.selectionModel !== null
        onChosen: root.togglePathEdit()
    }

    readonly property ModeAction draw: ModeAction {
        text: qsTr("&Draw")
        toolTip: qsTr("Draw with a freehand brush")
        toolKey: "B"
        icon.name: "paint_brush"
        active: root.paintController?.drawActive ?? false
        enabled: root.editable && root.paintController !== null
        onChosen: {
            if (active)
                root.paintController.drawActive = false
            else
                root.paintController.activateDrawMode()
        }
    }

    readonly property ModeAction eraser: ModeAction {
        text: qsTr("&Erase")
        toolTip: qsTr("Erase pixels from the selected layer")
        toolKey: "E"
        icon.name: "eraser"
        active: root.paintController?.eraserActive ?? false
        enabled: root.editable && root.paintController !== null
        onChosen: root.paintController.eraserActive = !active
    }

    readonly property ModeAction cloneStamp: ModeAction {
        text: qsTr("C&lone")
        toolTip: qsTr("Clone pixels")
        toolKey: "S"
        icon.name: "clone_stamp"
        active: root.paintController?.cloneStampActive ?? false
        enabled: root.editable && root.paintController !== null
        onChosen: root.paintController.cloneStampActive = !active
    }

    readonly property ModeAction exposureBrush: ModeAction {
        text: qsTr("E&xposure")
        toolTip: qsTr("Lighten or darken pixels with the Exposure brush")
        toolKey: "O"
        icon.name: "exposure_brush"
        active: root.paintController?.exposureBrushActive ?? false
        enabled: root.editable && root.paintController !== null
        onChosen: root.paintController.exposureBrushActive = !active
    }

    readonly property ModeAction fillSelection: ModeAction {
        text: qsTr("&Fill Selection")
        toolTip: qsTr("Fill the active raster selection")
        toolKey: "G"
        icon.name: "raster_selection_fill"
        active: root.paintController?.fillToolActive ?? false
        enabled: root.editable && (root.paintController?.canFillRasterSelection ?? false)
        onChosen: root.paintController.fillToolActive = !active
    }
}
