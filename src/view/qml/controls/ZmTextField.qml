import QtQuick
import QtQuick.Controls

// One line of text.
TextField {
    id: root

    implicitHeight: Theme.controlHeight
    leftPadding: Theme.spaceM
    rightPadding: Theme.spaceM
    topPadding: 0
    bottomPadding: 0
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    color: Theme.text
    opacity: enabled ? 1 : Theme.disabledOpacity

    background: Rectangle {
        radius: Theme.radius
        color: Theme.sunken
        border.width: root.activeFocus ? Theme.focusWidth : 1
        border.color: root.activeFocus ? Theme.accent : root.hovered ? Qt.alpha(Theme.text, 0.4) : Theme.outline
    }
}
