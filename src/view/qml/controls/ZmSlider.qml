import QtQuick
import QtQuick.Templates as T

// A slider. `moved` comes many times in one drag, which `editStarted` and `editFinished` bracket; each key is an edit.
T.Slider {
    id: root

    signal editStarted()
    signal editFinished()

    implicitHeight: Theme.controlHeight
    implicitWidth: 120
    opacity: enabled ? 1 : Theme.disabledOpacity
    onPressedChanged: pressed ? editStarted() : editFinished()

    background: Rectangle {
        y: (root.height - height) / 2
        width: root.width
        height: 4
        radius: 2
        color: Theme.outline

        Rectangle {
            width: root.handle.x + root.handle.width / 2
            height: 4
            radius: 2
            color: Theme.accent
        }
    }

    handle: Rectangle {
        x: root.visualPosition * (root.width - width)
        y: (root.height - height) / 2
        width: 14
        height: 14
        radius: 7
        color: root.pressed ? Theme.accent : Theme.handle
        border.width: root.visualFocus ? Theme.focusWidth : 1
        border.color: root.visualFocus || root.hovered || root.pressed ? Theme.accent : Theme.handleOutline
    }
}
