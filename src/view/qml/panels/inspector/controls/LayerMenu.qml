import QtQuick

// The context menu of a layer.
ZmMenu {
    id: root

    required property WindowActions actions

    signal renameRequested()

    ZmMenuItem { action: root.actions.layers.toggleVisibility }

    ZmMenuItem {
        action: ZmAction {
            text: qsTr("Rename")
            toolKey: "F2"
            onTriggered: root.renameRequested()
        }
    }

    ZmMenuSeparator {}
    ZmMenuItem { action: root.actions.edit.cut }
    ZmMenuItem { action: root.actions.edit.copy }
    ZmMenuItem { action: root.actions.edit.paste }
    ZmMenuSeparator {}
    ZmMenuItem { action: root.actions.layers.moveUp }
    ZmMenuItem { action: root.actions.layers.moveDown }
    ZmMenuSeparator {}
    ZmMenuItem { action: root.actions.layers.rasterize }
    ZmMenuItem { action: root.actions.layers.collapseDown }
    ZmMenuSeparator {}
    ZmMenuItem { action: root.actions.layers.removeLayer }
}
