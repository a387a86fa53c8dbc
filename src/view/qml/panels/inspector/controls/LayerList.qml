pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import ZelmoraAtelier

// The stack of layers, topmost first. Press selects, a drag moves, a double click renames. Keys: Up, Down, Home and End
// select, with Ctrl or Alt Up and Down move the layer, Space shows and hides, F2 renames, Delete removes, Menu or
// Shift+F10 opens the menu.
ScrollView {
    id: root

    required property SceneObjectAdapter sceneObjectAdapter
    required property WindowActions actions

    readonly property SceneLayerListModel layers: sceneObjectAdapter.layerListModel
    readonly property alias count: list.count
    readonly property real rowHeight: 44
    readonly property real endMargin: Theme.spaceM + (bar.visible ? bar.width - Theme.spaceXS : 0)
    property string renamingId
    property bool keyboardFocus: false
    // What is dragged. Its row may be showing another layer meanwhile.
    property var liftedLayer: null

    function idAt(row) {
        return layers.data(layers.index(row, 0), SceneLayerListModel.LayerIdRole)
    }

    function selectRow(row) {
        if (row >= 0 && row < list.count)
            sceneObjectAdapter.selectLayer(idAt(row))
    }

    function showSelected() {
        if (selection.row >= 0)
            list.positionViewAtIndex(selection.row, ListView.Contain)
    }

    function renameSelected() {
        if (selection.row < 0)
            return
        showSelected()
        renamingId = idAt(selection.row)
    }

    function finishRename() {
        if (renamingId)
            (list.itemAtIndex(selection.row) as LayerRow)?.finishRename()
    }

    function openMenu(position) {
        if (selection.row >= 0)
            menu.popup(list.contentItem, position)
    }

    function handleKey(event) {
        if (renamingId)
            return
        const moves = event.modifiers & (Qt.ControlModifier | Qt.AltModifier)
        switch (event.key) {
        case Qt.Key_Up:
            moves ? actions.layers.moveUp.trigger() : selectRow(Math.max(selection.row - 1, 0))
            break
        case Qt.Key_Down:
            moves ? actions.layers.moveDown.trigger() : selectRow(Math.min(selection.row + 1, list.count - 1))
            break
        case Qt.Key_Home:
            selectRow(0)
            break
        case Qt.Key_End:
            selectRow(list.count - 1)
            break
        case Qt.Key_Space:
            actions.layers.toggleVisibility.trigger()
            break
        case Qt.Key_Delete:
            actions.layers.removeLayer.trigger()
            break
        case Qt.Key_F2:
            renameSelected()
            break
        case Qt.Key_F10:
            if (!(event.modifiers & Qt.ShiftModifier))
                return
        // falls through: Shift+F10 is the menu key of keyboards without one
        case Qt.Key_Menu:
            openMenu(Qt.point(list.width / 2, (selection.row + 0.5) * rowHeight + list.originY))
            break
        case Qt.Key_Escape:
            event.accepted = drag.dragging
            drag.cancelDrag()
            return
        default:
            return
        }
        event.accepted = true
        keyboardFocus = true
    }

    implicitWidth: 0
    implicitHeight: 3 * rowHeight
    padding: 0
    ScrollBar.horizontal.policy: ScrollBar.AlwaysOff
    ScrollBar.vertical: ZmScrollBar {
        id: bar

        parent: root
        x: root.width - width
        height: root.height
    }

    SelectedLayerRow {
        id: selection

        model: root.layers
        onRowChanged: Qt.callLater(root.showSelected)
    }

    contentItem: ListView {
        id: list

        model: root.layers
        clip: true
        focus: true
        activeFocusOnTab: true
        keyNavigationEnabled: false
        currentIndex: -1     // the document knows what is selected
        reuseItems: true
        cacheBuffer: 4 * root.rowHeight
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Layers")
        Keys.onPressed: event => root.handleKey(event)
        onActiveFocusChanged: root.keyboardFocus = activeFocus && !drag.pressed

        move: Transition {
            NumberAnimation { property: "y"; duration: Theme.fadeMs; easing.type: Easing.OutQuad }
        }
        moveDisplaced: move

        delegate: LayerRow {
            id: row

            required property int index

            width: ListView.view.width
            height: root.rowHeight
            endMargin: root.endMargin
            mergeAction: root.actions.layers.collapseDown
            keyboardFocus: root.keyboardFocus && selected
            dimmed: drag.dragging && root.liftedLayer?.layerId === layerId
            hoverable: !drag.dragging
            renaming: root.renamingId === layerId
            onHiddenRequested: hidden => root.sceneObjectAdapter.setLayerHidden(layerId, hidden)
            onSelectionRequested: root.sceneObjectAdapter.selectLayer(layerId)
            onRenameRequested: name => {
                if (selected)
                    root.sceneObjectAdapter.name = name
            }
            onRenameEnded: {
                root.renamingId = ""
                list.forceActiveFocus()
            }
        }

        LayerDrag {
            id: drag

            list: list
            rowHeight: root.rowHeight
            onTouched: {
                root.finishRename()
                list.forceActiveFocus(Qt.MouseFocusReason)
                root.keyboardFocus = false
            }
            onRowPressed: row => root.selectRow(row)
            onRowDoubleClicked: root.renameSelected()
            onMenuRequested: (row, position) => root.openMenu(position)
            onLifted: row => {
                const item = list.itemAtIndex(row) as LayerRow
                root.liftedLayer = { layerId: item.layerId, name: item.name, hidden: item.hidden,
                    layerType: item.layerType, hasRasterSelection: item.hasRasterSelection,
                    thumbnailSource: item.thumbnailSource }
            }
            onDropped: gap => root.sceneObjectAdapter.moveLayerToListIndex(root.liftedLayer.layerId, gap)
        }

        // Where the dragged layer lands.
        Rectangle {
            parent: list.contentItem
            x: Theme.spaceM
            y: list.originY + Math.min(Math.max(drag.targetGap * root.rowHeight - 1, 0), list.contentHeight - height)
            z: 2
            width: list.width - x - root.endMargin
            height: 2
            radius: 1
            color: Theme.accent
            visible: drag.targetGap >= 0
        }

        Loader {
            y: drag.liftedY
            z: 3
            width: list.width
            height: root.rowHeight
            active: drag.dragging
            opacity: 0.9

            sourceComponent: LayerRow {
                lifted: true
                endMargin: root.endMargin
                selected: true
                layerId: root.liftedLayer.layerId
                name: root.liftedLayer.name
                hidden: root.liftedLayer.hidden
                layerType: root.liftedLayer.layerType
                hasRasterSelection: root.liftedLayer.hasRasterSelection
                thumbnailSource: root.liftedLayer.thumbnailSource
            }
        }
    }

    LayerMenu {
        id: menu

        actions: root.actions
        onRenameRequested: Qt.callLater(root.renameSelected)
    }
}
