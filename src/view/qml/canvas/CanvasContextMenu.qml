import QtQuick
import QtQuick.Controls

// What the right mouse button offers on the canvas. An action that is not there has no entry.
ZmMenu {
    id: root

    property Action cutAction: null
    property Action copyAction: null
    property Action pasteAction: null
    property Action removeLayerAction: null
    property Action invertRasterSelectionAction: null
    property Action clearRasterSelectionAction: null
    property var paintController: null
    // Where the menu was asked for.
    property point documentPoint
    property bool rasterizable: false

    // Opens at a point of the parent.
    function openAt(x, y) {
        rasterizable = paintController?.canRasterizeAt(documentPoint) ?? false
        popup(x, y)
    }

    Entry { action: root.cutAction }
    Entry { action: root.copyAction }
    Entry { action: root.pasteAction }

    Separator { needed: !!(root.cutAction || root.copyAction || root.pasteAction) }

    Entry {
        action: Action {
            text: qsTr("Rasterize Layer")
            icon.name: "add_paint_layer"
            enabled: root.rasterizable
            onTriggered: root.paintController.rasterizeAt(root.documentPoint)
        }
    }
    Entry { action: root.removeLayerAction }

    Separator { needed: !!(root.invertRasterSelectionAction || root.clearRasterSelectionAction) }

    Entry { action: root.invertRasterSelectionAction }
    Entry { action: root.clearRasterSelectionAction }

    // What is in a closed menu is not visible, so a height must not follow from that.
    component Entry: ZmMenuItem {
        visible: !!action
        height: action ? implicitHeight : 0
    }

    component Separator: ZmMenuSeparator {
        property bool needed

        visible: needed
        height: needed ? implicitHeight : 0
    }
}
