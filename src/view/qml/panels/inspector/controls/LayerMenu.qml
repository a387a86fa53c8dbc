import QtQuick

// The context menu of a layer.
ZmMenu {
    id: root

    required property LayerRowActions actions

    signal renameRequested()

    ZmMenuItem { action: root.actions.showHide }

    ZmMenuItem {
        action: ZmAction {
            text: qsTr("Rename")
            toolKey: "F2"
            onTriggered: root.renameRequested()
        }
    }

    ZmMenuSeparator {}
    ZmMenuItem { action: root.actions.cut }
    ZmMenuItem { action: root.actions.copy }
    ZmMenuItem { action: root.actions.paste }
    ZmMenuSeparator {}
    ZmMenuItem { action: root.actions.moveUp }
    ZmMenuItem { action: root.actions.moveDown }
    ZmMenuSeparator {}
    ZmMenuItem { action: root.actions.rasterize }
    ZmMenuItem { action: root.actions.mergeBelow }
    ZmMenuSeparator {}
    ZmMenuItem { action: root.actions.remove }
}
