import QtQuick
import QtQuick.Controls

// A flat button for bars: shows its frame only under the pointer, when pressed, or with the keyboard's focus. Takes
// icon, text, tool tip and keys from its action.
ToolButton {
    id: root

    property string toolTip: (action?.toolTip || action?.plainText) ?? ""
    // Where the pointer is, for who has to tell of a button that is disabled and feels none.
    property bool pointedAt: hovered
    readonly property color inkColor: checked ? Theme.link : Theme.text

    // Without the mnemonic, which would be a shortcut of the button too.
    text: action?.plainText ?? ""
    implicitHeight: Theme.controlHeight
    leftPadding: Theme.spaceM
    rightPadding: Theme.spaceM
    topPadding: 0
    bottomPadding: 0
    spacing: Theme.spaceS + 1
    focusPolicy: Qt.TabFocus
    opacity: enabled ? 1 : Theme.disabledOpacity
    icon.width: Theme.toolIconSize
    icon.height: Theme.toolIconSize
    icon.color: inkColor
    palette.buttonText: inkColor
    Accessible.name: text || toolTip
    Accessible.description: toolTip

    ZmToolTip {
        visible: (root.pointedAt || root.visualFocus) && !root.down && text
        text: root.toolTip ? Theme.withKeys(root.toolTip, root.action?.keys ?? "") : ""
    }

    background: Rectangle {
        implicitWidth: Theme.controlHeight
        radius: Theme.radius
        color: root.checked ? Theme.accentSoft : root.down ? Theme.pressedFill
                                                           : root.hovered ? Theme.hoverFill : "transparent"

        FocusFrame { control: root }
    }
}
