import QtQuick

// The ring around the control that has the keyboard.
Rectangle {
    required property Item control

    anchors.fill: parent
    color: "transparent"
    radius: Theme.radius
    border.width: Theme.focusWidth
    border.color: Theme.accent
    visible: control.visualFocus ?? control.activeFocus
}
