import QtQuick
import QtQuick.Controls

// A tab with its icon above its name.
TabButton {
    id: root

    readonly property color textColor: checked ? Theme.text : Theme.mutedText

    implicitHeight: 48
    padding: 0
    topPadding: Theme.spaceS
    bottomPadding: Theme.spaceS
    spacing: 1
    display: AbstractButton.TextUnderIcon
    font.pixelSize: Theme.fontSmall
    icon.width: Theme.toolIconSize
    icon.height: Theme.toolIconSize
    icon.color: checked ? Theme.accent : Theme.text
    palette.windowText: textColor
    palette.buttonText: textColor
    Accessible.name: text

    background: Rectangle {
        color: root.hovered && !root.checked ? Theme.hoverFill : "transparent"

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 2
            color: Theme.accent
            visible: root.checked
        }

        FocusFrame {
            control: root
            anchors.margins: 1
        }
    }
}
