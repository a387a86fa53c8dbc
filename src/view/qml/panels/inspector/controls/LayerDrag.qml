import QtQuick

// Presses and drags on the rows of a list, seen by the list and not by its rows, which come and go while one scrolls.
// Lies behind the rows in the content of the list, all of which have one height.
MouseArea {
    id: root

    required property ListView list
    required property real rowHeight

    readonly property bool dragging: draggedRow >= 0
    property int draggedRow: -1
    // The gap between rows where the layer would land, -1 for where it already is.
    property int targetGap: -1
    // Where the dragged row is shown, in the view.
    readonly property real liftedY: Math.min(Math.max(viewY - grabOffset, 0), Math.max(list.height - rowHeight, 0))

    property int pressedRow: -1
    property real pressY: 0
    property real grabOffset: 0
    property real viewY: 0

    readonly property real edge: Math.min(28, list.height / 4)   // where the list scrolls by itself

    signal touched()
    signal rowPressed(int row)
    signal rowDoubleClicked(int row)
    signal menuRequested(int row, point position)
    signal lifted(int row)
    signal dropped(int gap)     // not for the gaps beside the dragged row itself

    function rowAt(y) {
        return y >= 0 && y < list.count * rowHeight ? Math.floor(y / rowHeight) : -1
    }

    function cancelDrag() {
        draggedRow = -1
        targetGap = -1
        pressedRow = -1
    }

    // The upper half of a row means the gap above it, the lower half the one below.
    function updateTarget() {
        const y = viewY + list.contentY - list.originY
        const gap = Math.min(Math.max(Math.round(y / rowHeight), 0), list.count)
        targetGap = gap === draggedRow || gap === draggedRow + 1 ? -1 : gap
    }

    function scrollStep() {
        const beyond = viewY < edge ? viewY - edge : Math.max(viewY - list.height + edge, 0)
        const lowest = list.originY + Math.max(list.contentHeight - list.height, 0)
        const step = Math.min(Math.max(beyond / 3, -14), 14)
        list.contentY = Math.min(Math.max(list.contentY + step, list.originY), lowest)
        updateTarget()
    }

    parent: list.contentItem
    z: -1
    y: list.originY
    width: list.width
    height: Math.max(list.contentHeight, list.height)
    acceptedButtons: Qt.LeftButton | Qt.RightButton
    preventStealing: true
    cursorShape: dragging ? Qt.ClosedHandCursor : undefined

    onPressed: mouse => {
        const row = rowAt(mouse.y)
        pressedRow = mouse.button === Qt.LeftButton ? row : -1
        pressY = mouse.y
        grabOffset = mouse.y - row * rowHeight
        touched()
        if (row >= 0)
            rowPressed(row)
        if (row >= 0 && mouse.button === Qt.RightButton)
            menuRequested(row, Qt.point(mouse.x, mouse.y))
    }
    onPositionChanged: mouse => {
        viewY = mouse.y + y - list.contentY
        if (!dragging && pressedRow >= 0 && list.count > 1
                && Math.abs(mouse.y - pressY) >= Application.styleHints.startDragDistance) {
            lifted(pressedRow)
            draggedRow = pressedRow
        }
        if (dragging)
            updateTarget()
    }
    onReleased: {
        const gap = targetGap
        cancelDrag()
        if (gap >= 0)
            dropped(gap)
    }
    onCanceled: cancelDrag()
    onDoubleClicked: mouse => {
        if (mouse.button === Qt.LeftButton && rowAt(mouse.y) >= 0)
            rowDoubleClicked(rowAt(mouse.y))
    }

    Timer {
        interval: 16
        repeat: true
        running: root.dragging && (root.viewY < root.edge || root.viewY > root.list.height - root.edge)
        onTriggered: root.scrollStep()
    }
}
