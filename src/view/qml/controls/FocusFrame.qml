import QtQuick
import QtQuick.Templates as T

// The ring around the control that has the keyboard.
Rectangle {
    required property Item control
    readonly property T.Control button: control as T.Control    // which tells by what it got the focus

    anchors.fill: parent
    color: "transparent"
    radius: Theme.radius
    border.width: Theme.focusWidth
    border.color: Theme.accent
    visible: button ? button.visualFocus : control.activeFocus
}
