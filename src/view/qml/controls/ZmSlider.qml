import QtQuick
import QtQuick.Controls

// A slider. `moved` comes many times in one drag, which `editStarted` and `editFinished` bracket; each key is an edit.
Slider {
    id: root

    signal editStarted()
    signal editFinished()

    implicitHeight: Theme.controlHeight
    implicitWidth: 120
    padding: 0
    opacity: enabled ? 1 : Theme.disabledOpacity
    onPressedChanged: pressed ? editStarted() : editFinished()

    background: Rectangle {
        x: root.leftPadding
        y: (root.height - height) / 2
        width: root.availableWidth
        height: 4
        radius: 2
        color: Theme.outline

        Rectangle {
            width: root.handle.x + root.handle.width / 2
            height: parent.height
            radius: parent.radius
            color: Theme.accent
        }
    }

    handle: Rectangle {
        x: root.leftPadding + root.visualPosition * (root.availableWidth - width)
        y: (root.height - height) / 2
        width: 14
        height: 14
        radius: 7
        color: root.pressed ? Theme.accent : Theme.dark ? "#e8eaed" : "white"
        border.width: root.visualFocus ? Theme.focusWidth : 1
        border.color: root.visualFocus || root.hovered || root.pressed ? Theme.accent : Qt.alpha("black", 0.35)
    }
}
