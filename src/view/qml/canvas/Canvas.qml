pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls

// The editing surface: shows the scene at a zoom around a point of the document and turns pointer, wheel and keys into
// changes of that view. "View" is in this item's pixels, "document" in document units with the origin in the middle.
Pane {
    id: root

    required property ScenePresentationModel sceneModel
    property EditorStateModel editorState: null
    // What the right mouse button opens. It comes from outside, for its actions work on the canvas.
    property Menu contextMenu: null
    property real zoom: 1.0
    property bool fixedDocumentBounds: false
    property bool documentBoundsVisible: false
    property bool rulersVisible: false
    property bool rulersAtBottomRight: false
    // The document point in the middle of the view, before fixed bounds hold it back.
    property point boardCenter: Qt.point(0, 0)
    readonly property bool textEditing: editorState?.textEditActive ?? false
    // Where the context menu was last asked for.
    property point contextDocumentPoint
    // The whole document is in view and stays so while the view changes its size, until it is moved.
    property bool documentFitted: false

    readonly property real minimumZoom: 0.05
    readonly property real maximumZoom: 48.0
    readonly property rect visibleDocumentRect: alignedToPixels(documentViewportRect())
    readonly property rect addLayerViewportRect: paddedVisibleDocumentRect(fitPadding)
    // Document point at the view's (0, 0), and pixels of the view for one document unit: what overlays draw with.
    readonly property point viewOrigin: sceneModel ? Qt.point(sceneModel.sceneRect.x, sceneModel.sceneRect.y)
                                                   : Qt.point(visibleDocumentRect.x, visibleDocumentRect.y)
    readonly property real viewScale: zoom

    readonly property real fitPadding: 40       // screen pixels, both sides together
    readonly property real wheelZoomStep: 1.1
    readonly property real buttonZoomStep: 1.25
    readonly property bool canZoomIn: zoom < maximumZoom
    readonly property bool canZoomOut: zoom > minimumZoom
    readonly property real dragThreshold: 3
    readonly property real rulerThickness: 24
    readonly property real pixelRatio: Screen.devicePixelRatio

    signal filesDropped(list<url> fileUrls)

    function setZoom(value) {
        if (isFinite(value))
            zoom = Math.min(Math.max(value, minimumZoom), maximumZoom)
    }

    function zoomIn() {
        setZoom(zoom * buttonZoomStep)
    }

    function zoomOut() {
        setZoom(zoom / buttonZoomStep)
    }

    function forceCanvasFocus() {
        viewport.forceActiveFocus()
    }

    function commitTextEditing() {
        if (textEditing)
            editorState.activateTransformMode()
    }

    function panBoardFromViewportDelta(startCenter, deltaX, deltaY, panHorizontal, panVertical) {
        if (!isFinite(deltaX) || !isFinite(deltaY))
            return
        boardCenter = Qt.point(panHorizontal ? startCenter.x - deltaX / zoom : boardCenter.x,
                               panVertical ? startCenter.y - deltaY / zoom : boardCenter.y)
    }

    function handleSceneObjectAdded(focusBounds, fitViewToBounds) {
        if (fitViewToBounds)
            fitDocumentRect(focusBounds)
        forceCanvasFocus()
        Qt.callLater(forceCanvasFocus)
    }

    // Shows the whole of `bounds`, never above 100 %. False for bounds that are missing or not finite.
    function fitDocumentRect(bounds) {
        if (!isFiniteRect(bounds))
            return false
        showDocumentRect(bounds, 1.0)
        return true
    }

    function fitDocument() {
        documentFitted = sceneModel !== null && fitDocumentRect(sceneModel.documentRect)
    }

    function fitDocumentAgain() {
        if (documentFitted)
            Qt.callLater(fitDocument)
    }

    // Zooms out and centres only if `bounds` are not in view yet; true if the view changed.
    function ensureDocumentRectVisible(bounds) {
        if (!isFiniteRect(bounds))
            return false
        const visible = paddedVisibleDocumentRect(fitPadding)
        if (bounds.x >= visible.x && bounds.x + bounds.width <= visible.x + visible.width
                && bounds.y >= visible.y && bounds.y + bounds.height <= visible.y + visible.height)
            return false
        showDocumentRect(bounds, zoom)
        return true
    }

    // What the view covers, in document units. With fixed bounds the view stays on the document.
    function documentViewportRect() {
        const width = Math.max(1, viewport.width) / zoom
        const height = Math.max(1, viewport.height) / zoom
        let x = boardCenter.x - width / 2
        let y = boardCenter.y - height / 2
        if (fixedDocumentBounds && sceneModel) {
            const bounds = sceneModel.documentRect
            x = heldWithin(x, width, bounds.x, bounds.width)
            y = heldWithin(y, height, bounds.y, bounds.height)
        }
        return Qt.rect(x, y, width, height)
    }

    function paddedVisibleDocumentRect(totalScreenPadding) {
        const padding = Math.max(0, totalScreenPadding) / Math.max(zoom, minimumZoom)
        const visible = visibleDocumentRect
        const insetX = Math.min(padding / 2, Math.max(0, visible.width - 1) / 2)
        const insetY = Math.min(padding / 2, Math.max(0, visible.height - 1) / 2)
        return Qt.rect(visible.x + insetX, visible.y + insetY,
                       Math.max(1, visible.width - 2 * insetX), Math.max(1, visible.height - 2 * insetY))
    }

    function documentToView(point) {
        return Qt.point((point.x - viewOrigin.x) * viewScale, (point.y - viewOrigin.y) * viewScale)
    }

    function viewToDocument(point) {
        return Qt.point(viewOrigin.x + point.x / viewScale, viewOrigin.y + point.y / viewScale)
    }

    function resetFixedDocumentView() {
        if (!fixedDocumentBounds || !sceneModel)
            return
        const bounds = sceneModel.documentRect
        boardCenter = Qt.point(bounds.x + bounds.width / 2, bounds.y + bounds.height / 2)
    }

    function isFiniteRect(bounds) {
        return bounds !== undefined && bounds !== null && isFinite(bounds.x) && isFinite(bounds.y)
                && isFinite(bounds.width) && isFinite(bounds.height)
    }

    // The part of `rect` within `bounds`, or all of `bounds` if there is none.
    function intersected(rect, bounds) {
        const x = Math.max(rect.x, bounds.x)
        const y = Math.max(rect.y, bounds.y)
        const width = Math.min(rect.x + rect.width, bounds.x + bounds.width) - x
        const height = Math.min(rect.y + rect.height, bounds.y + bounds.height) - y
        return width > 0 && height > 0 ? Qt.rect(x, y, width, height) : bounds
    }

    function heldWithin(position, length, boundsPosition, boundsLength) {
        if (length >= boundsLength)
            return boundsPosition + (boundsLength - length) / 2
        return Math.min(Math.max(position, boundsPosition), boundsPosition + boundsLength - length)
    }

    // The tiles lie on the grid of device pixels; a view between two pixels would show them blurred.
    function alignedToPixels(rect) {
        const scale = zoom * pixelRatio
        return Qt.rect(Math.round(rect.x * scale) / scale, Math.round(rect.y * scale) / scale, rect.width, rect.height)
    }

    function showDocumentRect(bounds, zoomLimit) {
        sceneUpdates.held = true
        setZoom(Math.min(zoomLimit, (viewport.width - fitPadding) / Math.max(1, bounds.width),
                         (viewport.height - fitPadding) / Math.max(1, bounds.height)))
        boardCenter = Qt.point(bounds.x + bounds.width / 2, bounds.y + bounds.height / 2)
        sceneUpdates.held = false
        sceneUpdates.apply()
    }

    padding: 0
    background: Rectangle {
        color: root.fixedDocumentBounds ? "#30343b" : "white"
    }

    onVisibleDocumentRectChanged: sceneUpdates.apply()
    onZoomChanged: {
        documentFitted = false
        sceneUpdates.apply()
    }
    onBoardCenterChanged: documentFitted = false
    onWidthChanged: fitDocumentAgain()
    onHeightChanged: fitDocumentAgain()
    onRulersVisibleChanged: fitDocumentAgain()
    onPixelRatioChanged: sceneUpdates.apply()
    onSceneModelChanged: sceneUpdates.apply()
    onFixedDocumentBoundsChanged: resetFixedDocumentView()
    Component.onCompleted: {
        resetFixedDocumentView()
        sceneUpdates.held = false
        sceneUpdates.apply()
    }

    // Gives the scene its rectangle and its scale together: changed one after the other, each would compose a picture,
    // and a large rectangle at a large scale in between would be gigabytes.
    QtObject {
        id: sceneUpdates

        property bool held: true

        function apply() {
            const rect = root.documentViewportRect()
            // The scene takes less than one unit for no viewport at all and would compose everything.
            if (!held && root.sceneModel && Math.min(rect.width, rect.height) >= 1)
                root.sceneModel.setView(root.alignedToPixels(rect), root.zoom * root.pixelRatio)
        }
    }

    Binding {
        target: root.sceneModel
        property: "fixedDocumentBounds"
        value: root.fixedDocumentBounds
    }

    Binding {
        target: root.sceneModel
        property: "documentBoundsVisible"
        value: root.documentBoundsVisible
    }

    contentItem: Item {
        PanArea {
            id: boardPanArea

            onPressStarted: viewport.startPan()
            onDragged: (deltaX, deltaY) => viewport.pan(deltaX, deltaY, true, true)
            z: -1
            anchors.fill: parent
            acceptedButtons: Qt.MiddleButton
            cursorShape: dragging ? Qt.ClosedHandCursor : Qt.ArrowCursor

            // With Alt held some platforms turn the wheel's axis.
            onWheel: wheel => {
                const alongAlt = wheel.angleDelta.y === 0 && (wheel.modifiers & Qt.AltModifier)
                const delta = alongAlt ? wheel.angleDelta.x : wheel.angleDelta.y
                root.setZoom(delta > 0 ? root.zoom * root.wheelZoomStep : root.zoom / root.wheelZoomStep)
                wheel.accepted = true
            }
        }

        Control {
            id: viewport

            property bool spaceHeld: false
            property point panStart

            // A drag starts from the point that is really in the middle, so that fixed bounds leave no dead way.
            function startPan() {
                const rect = root.documentViewportRect()
                panStart = Qt.point(rect.x + rect.width / 2, rect.y + rect.height / 2)
                root.forceCanvasFocus()
            }

            function pan(deltaX, deltaY, horizontal, vertical) {
                root.panBoardFromViewportDelta(panStart, deltaX, deltaY, horizontal, vertical)
            }

            function openContextMenu(x, y) {
                root.forceCanvasFocus()
                root.contextDocumentPoint = root.viewToDocument(Qt.point(x, y))
                root.contextMenu?.popup(viewport, x, y)
            }

            // Asked for by the keyboard, the menu is about the selected layer, if any of it is in view.
            function openContextMenuAtSelection() {
                const visible = root.visibleDocumentRect
                const target = root.sceneModel?.hasSelection ? root.intersected(root.sceneModel.selectionRect, visible)
                                                             : visible
                const point = root.documentToView(Qt.point(target.x + target.width / 2, target.y + target.height / 2))
                openContextMenu(point.x, point.y)
            }

            x: root.rulersVisible && !root.rulersAtBottomRight ? root.rulerThickness : 0
            y: x
            width: parent.width - (root.rulersVisible ? root.rulerThickness : 0)
            height: parent.height - (root.rulersVisible ? root.rulerThickness : 0)
            focus: true
            focusPolicy: Qt.TabFocus
            hoverEnabled: false
            clip: true
            Accessible.role: Accessible.Graphic
            Accessible.name: qsTr("Canvas")
            Accessible.description: qsTr("The document. Drag to move the view, turn the wheel to zoom.")

            Keys.onPressed: event => {
                if (event.key === Qt.Key_Space && event.modifiers === Qt.NoModifier)
                    spaceHeld = true
                else if (event.key === Qt.Key_Menu || event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier)
                    openContextMenuAtSelection()
                else
                    return
                event.accepted = true
            }
            Keys.onReleased: event => {
                if (event.key !== Qt.Key_Space || event.isAutoRepeat)
                    return
                spaceHeld = false
                event.accepted = true
            }
            onActiveFocusChanged: spaceHeld = false

            EditorCanvasItem {
                anchors.fill: parent
                sceneModel: root.sceneModel
                viewScale: root.viewScale
            }

            PanArea {
                id: layerInteractionArea

                onPressStarted: viewport.startPan()
                onDragged: (deltaX, deltaY) => viewport.pan(deltaX, deltaY, true, true)
                anchors.fill: parent
                acceptedButtons: Qt.LeftButton
                threshold: root.dragThreshold
                cursorShape: dragging || boardPanArea.dragging ? Qt.ClosedHandCursor : Qt.ArrowCursor
            }

            MouseArea {
                z: 180
                anchors.fill: parent
                acceptedButtons: Qt.RightButton
                onClicked: mouse => viewport.openContextMenu(mouse.x, mouse.y)
            }

            PanArea {
                onPressStarted: viewport.startPan()
                onDragged: (deltaX, deltaY) => viewport.pan(deltaX, deltaY, true, true)
                z: 190
                anchors.fill: parent
                visible: viewport.spaceHeld || dragging
                acceptedButtons: Qt.LeftButton
                cursorShape: dragging ? Qt.ClosedHandCursor : Qt.OpenHandCursor
            }

            FocusFrame {
                control: viewport
                z: 195
                radius: 0
            }

            ToastOverlay {
                z: 200
                anchors.top: parent.top
                anchors.topMargin: 12
                anchors.horizontalCenter: parent.horizontalCenter
                maximumWidth: Math.max(56, parent.width - 32)
            }

            // Importing must never make the source move its file, so only a copy is accepted.
            DropArea {
                function offersCopies(drag) {
                    return drag.hasUrls && (drag.supportedActions & Qt.CopyAction)
                }

                z: 300
                anchors.fill: parent
                onEntered: drag => {
                    if (offersCopies(drag))
                        drag.accept(Qt.CopyAction)
                    else
                        drag.accepted = false
                }
                onDropped: drop => {
                    if (!offersCopies(drop)) {
                        drop.accepted = false
                        return
                    }
                    drop.accept(Qt.CopyAction)
                    root.filesDropped(drop.urls)
                }
            }

            // Above all the tools, and takes nothing from them: while a button is held there is no hovering.
            Item {
                id: pointerArea

                readonly property point position: pressedPointer.active ? pressedPointer.point.position
                                                                        : hoveringPointer.point.position

                z: 310
                anchors.fill: parent

                HoverHandler {
                    id: hoveringPointer
                }

                PointHandler {
                    id: pressedPointer

                    acceptedButtons: Qt.AllButtons
                }
            }
        }

        Loader {
            anchors.fill: parent
            active: root.rulersVisible
            sourceComponent: CanvasRulers {
                thickness: root.rulerThickness
                atBottomRight: root.rulersAtBottomRight
                viewOrigin: root.viewOrigin
                viewScale: root.viewScale
                pointer: pointerArea.position
                pointerVisible: hoveringPointer.hovered || pressedPointer.active
                onDragStarted: viewport.startPan()
                onDragged: (deltaX, deltaY, horizontal, vertical) => viewport.pan(deltaX, deltaY, horizontal, vertical)
            }
        }
    }
}
