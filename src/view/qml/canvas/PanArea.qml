import QtQuick

// Reports a drag with one mouse button. It begins once the pointer is `threshold` pixels away from where it was
// pressed, and is counted from the press.
MouseArea {
    id: root

    property real threshold: 0
    readonly property alias dragging: press.active

    signal pressStarted()
    signal dragged(real deltaX, real deltaY)

    onPressed: mouse => {
        press.pressX = mouse.x
        press.pressY = mouse.y
        press.active = threshold <= 0
        pressStarted()
    }
    onPositionChanged: mouse => {
        if (!pressed)
            return
        const deltaX = mouse.x - press.pressX
        const deltaY = mouse.y - press.pressY
        if (Math.hypot(deltaX, deltaY) >= threshold)
            press.active = true
        if (press.active)
            dragged(deltaX, deltaY)
    }
    onReleased: press.active = false
    onCanceled: press.active = false

    QtObject {
        id: press

        property bool active: false
        property real pressX: 0
        property real pressY: 0
    }
}
