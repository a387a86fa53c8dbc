pragma ComponentBehavior: Bound

import QtQuick

// Selections of pixels in an image layer.
QtObject {
    id: root

    required property ActionContext context
    readonly property var model: context.selectionModel     // see ActionContext
    readonly property var clipboard: context.clipboard
    readonly property bool editable: context.editable

    component SelectionMode: ModeAction {
        signal activated()

        enabled: root.editable && (root.model?.rasterSelectionAvailable ?? false)
        onChosen: {
            if (active)
                root.context.activateSelectionMode()
            else
                activated()
        }
    }

    readonly property SelectionMode rectangle: SelectionMode {
        text: qsTr("&Rectangular Selection")
        toolTip: qsTr("Create a rectangular raster selection")
        toolKey: "M"
        icon.name: "raster_selection_rect"
        active: root.model?.rasterRectangleSelectionActive ?? false
        onActivated: root.model.activateRasterRectangleSelectionMode()
    }

    readonly property SelectionMode ellipse: SelectionMode {
        text: qsTr("&Elliptical Selection")
        toolTip: qsTr("Create an elliptical raster selection")
        toolKey: "Shift+M"
        icon.name: "raster_selection_ellipse"
        active: root.model?.rasterEllipseSelectionActive ?? false
        onActivated: root.model.activateRasterEllipseSelectionMode()
    }

    readonly property SelectionMode magicWand: SelectionMode {
        text: qsTr("Magic &Wand Selection")
        toolTip: qsTr("Select a contiguous color region")
        toolKey: "W"
        icon.name: "raster_selection_wand"
        active: root.model?.magicWandSelectionActive ?? false
        onActivated: root.model.activateMagicWandSelectionMode()
    }

    readonly property SelectionMode polygon: SelectionMode {
        text: qsTr("&Polygon Selection")
        toolTip: qsTr("Edit the raster selection path")
        toolKey: "L"
        icon.name: "raster_selection_polygon"
        active: root.model !== null && root.model.rasterSelectionEditActive && !root.model.rasterSelectionShapeActive
        onActivated: root.model.activateRasterPolygonSelectionMode(!root.model.hasRasterSelection)
    }

    readonly property ZmAction clearRaster: ZmAction {
        text: qsTr("C&lear Raster Selection")
        toolTip: qsTr("Clear the raster selection")
        shortcut: "Ctrl+D"
        icon.name: "raster_selection_clear"
        enabled: root.editable && (root.model?.hasRasterSelection ?? false)
        onTriggered: root.model.clearRasterSelection()
    }

    readonly property ZmAction invertRaster: ZmAction {
        text: qsTr("&Invert Raster Selection")
        shortcut: "Ctrl+I"
        alsoKeys: "Ctrl+Shift+I"
        icon.name: "raster_selection_invert"
        enabled: root.editable && (root.model?.hasRasterSelection ?? false)
        onTriggered: root.model.invertRasterSelection()
    }

    readonly property Shortcut invertRasterToo: Shortcut {
        sequence: "Ctrl+Shift+I"
        context: Qt.ApplicationShortcut
        enabled: root.invertRaster.enabled && !OpenDialogs.any
        onActivated: root.invertRaster.trigger()
    }

    readonly property ZmAction extractRasterToLayer: ZmAction {
        text: qsTr("E&xtract Selection to New Layer")
        icon.name: "add_paint_layer"
        enabled: root.editable && (root.clipboard?.canExtractRasterSelection ?? false)
        onTriggered: {
            root.context.commitTextEditing()
            if (root.context.report(root.clipboard.extractRasterSelectionToLayer(), root.clipboard))
                root.context.activateSelectionMode()
        }
    }
}
