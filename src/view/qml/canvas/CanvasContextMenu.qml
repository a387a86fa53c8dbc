import QtQuick

// What the right mouse button offers on the canvas.
ZmMenu {
    id: root

    required property WindowActions actions
    // Where the menu was asked for.
    required property point documentPoint
    property bool rasterizable: false

    onAboutToShow: rasterizable = actions.context.paintController?.canRasterizeAt(documentPoint) ?? false

    ZmMenuItem { action: root.actions.edit.cut }
    ZmMenuItem { action: root.actions.edit.copy }
    ZmMenuItem { action: root.actions.edit.paste }
    ZmMenuSeparator {}

    ZmMenuItem {
        action: ZmAction {
            text: qsTr("Rasterize Layer")
            icon.name: "add_paint_layer"
            enabled: root.rasterizable
            onTriggered: root.actions.context.paintController.rasterizeAt(root.documentPoint)
        }
    }

    ZmMenuItem { action: root.actions.layers.removeLayer }
    ZmMenuSeparator {}
    ZmMenuItem { action: root.actions.selection.invertRaster }
    ZmMenuItem { action: root.actions.selection.clearRaster }
}
