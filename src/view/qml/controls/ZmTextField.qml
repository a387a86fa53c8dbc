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

    // With nothing typed to take back, the keys of the history mean the document's, if the window has one.
    Keys.onPressed: event => {
        const undoes = event.matches(StandardKey.Undo) && !canUndo
        const redoes = event.matches(StandardKey.Redo) && !canRedo
        event.accepted = (undoes || redoes) && ApplicationWindow.window?.stepHistory !== undefined
        if (event.accepted)
            ApplicationWindow.window.stepHistory(redoes)
    }

    background: Rectangle {
        radius: Theme.radius
        color: Theme.sunken
        border.width: root.activeFocus ? Theme.focusWidth : 1
        border.color: root.activeFocus ? Theme.accent : root.hovered ? Qt.alpha(Theme.text, 0.4) : Theme.outline
    }
}
