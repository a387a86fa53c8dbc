import QtQuick

// The two rulers of the canvas and the corner between them, around the edges of the view, which is inset by their
// thickness. Dragging a ruler moves the view along it, dragging the corner moves it both ways.
Item {
    id: root

    required property real thickness
    required property bool atBottomRight
    // Document point at the view's (0, 0), and pixels of the view for one document unit.
    required property point viewOrigin
    required property real viewScale
    // The pointer in the view, marked on both rulers.
    property point pointer
    property bool pointerVisible: false

    readonly property real edgeX: atBottomRight ? width - thickness : 0
    readonly property real edgeY: atBottomRight ? height - thickness : 0
    readonly property real viewX: atBottomRight ? 0 : thickness
    readonly property real viewY: atBottomRight ? 0 : thickness
    readonly property color tickColor: faded(0.45)
    readonly property color labelColor: faded(0.8)
    readonly property color borderColor: faded(0.25)

    signal dragStarted()
    signal dragged(real deltaX, real deltaY, bool horizontal, bool vertical)

    // The text's colour thinned out over the window's, so that it holds in every theme.
    function faded(strength) {
        return Qt.tint(palette.window, Qt.alpha(palette.windowText, strength))
    }

    CanvasRulerItem {
        id: horizontalRuler

        x: root.viewX
        y: root.edgeY
        width: root.width - root.thickness
        height: root.thickness
        orientation: CanvasRulerItem.Horizontal
        oppositeEdge: root.atBottomRight
        viewOrigin: root.viewOrigin
        viewScale: root.viewScale
        backgroundColor: root.palette.window
        tickColor: root.tickColor
        labelColor: root.labelColor
        borderColor: root.borderColor

        PanArea {
            anchors.fill: parent
            cursorShape: Qt.SizeHorCursor
            onPressStarted: root.dragStarted()
            onDragged: (deltaX, deltaY) => root.dragged(deltaX, deltaY, true, false)
        }

        PointerMark {
            x: Math.floor(root.pointer.x)
            width: 1
            height: parent.height
            visible: root.pointerVisible && x >= 0 && x < parent.width
        }
    }

    CanvasRulerItem {
        id: verticalRuler

        x: root.edgeX
        y: root.viewY
        width: root.thickness
        height: root.height - root.thickness
        orientation: CanvasRulerItem.Vertical
        oppositeEdge: root.atBottomRight
        viewOrigin: root.viewOrigin
        viewScale: root.viewScale
        backgroundColor: root.palette.window
        tickColor: root.tickColor
        labelColor: root.labelColor
        borderColor: root.borderColor

        PanArea {
            anchors.fill: parent
            cursorShape: Qt.SizeVerCursor
            onPressStarted: root.dragStarted()
            onDragged: (deltaX, deltaY) => root.dragged(deltaX, deltaY, false, true)
        }

        PointerMark {
            y: Math.floor(root.pointer.y)
            width: parent.width
            height: 1
            visible: root.pointerVisible && y >= 0 && y < parent.height
        }
    }

    Rectangle {
        x: root.edgeX
        y: root.edgeY
        width: root.thickness
        height: root.thickness
        color: root.palette.window

        // The rulers' border lines, led on to where they meet.
        Rectangle {
            x: root.atBottomRight ? 0 : parent.width - width
            y: root.atBottomRight ? 0 : parent.height - height
            width: 1 / Screen.devicePixelRatio
            height: width
            color: root.borderColor
        }

        PanArea {
            anchors.fill: parent
            cursorShape: dragging ? Qt.ClosedHandCursor : Qt.OpenHandCursor
            onPressStarted: root.dragStarted()
            onDragged: (deltaX, deltaY) => root.dragged(deltaX, deltaY, true, true)
        }
    }

    component PointerMark: Rectangle {
        color: palette.highlight
    }
}
