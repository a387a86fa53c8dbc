import QtQuick
import QtQuick.Templates as T

// One line of text.
T.TextField {
    id: root

    // False if the window is one without a history.
    function stepHistory(window: var, redo: bool): bool {
        if (window?.stepHistory === undefined)
            return false
        window.stepHistory(redo)
        return true
    }

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: Theme.controlHeight
    leftPadding: Theme.spaceM
    rightPadding: Theme.spaceM
    verticalAlignment: TextInput.AlignVCenter
    color: Theme.text
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentText
    opacity: enabled ? 1 : Theme.disabledOpacity

    // With nothing typed to take back, the keys of the history mean the document's.
    Keys.onPressed: event => {
        const undoes = event.matches(StandardKey.Undo) && !canUndo
        const redoes = event.matches(StandardKey.Redo) && !canRedo
        event.accepted = (undoes || redoes) && stepHistory(T.ApplicationWindow.window, redoes)
    }

    background: Rectangle {
        radius: Theme.radius
        color: Theme.sunken
        border.width: root.activeFocus ? Theme.focusWidth : 1
        border.color: root.activeFocus ? Theme.accent : root.hovered ? Theme.strongOutline : Theme.outline
    }
}
