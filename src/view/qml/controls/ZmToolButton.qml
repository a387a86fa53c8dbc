import QtQuick
import QtQuick.Controls.impl
import QtQuick.Templates as T

// A flat button for bars: shows its frame only under the pointer, when pressed, or with the keyboard's focus. Takes
// icon, text, tool tip and keys from its action.
T.ToolButton {
    id: root

    readonly property ZmAction zmAction: action as ZmAction
    property string toolTip: (zmAction?.toolTip || zmAction?.plainText) ?? ""
    // Where buttons stand below each other.
    property bool toolTipBeside: false
    // Where the pointer is, for who has to tell of a button that is disabled and feels none.
    property bool pointedAt: hovered
    readonly property color inkColor: checked ? Theme.link : Theme.text

    function tellToolTip() {
        const wanted = (pointedAt || visualFocus) && toolTip
        ToolTips.ask(root, wanted ? Theme.withKeys(toolTip, zmAction?.keys ?? "") : "", toolTipBeside)
    }

    // Without the mnemonic, which would be a shortcut of the button too.
    text: zmAction?.plainText ?? ""
    implicitWidth: Math.max(Theme.controlHeight, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Theme.controlHeight
    leftPadding: Theme.spaceM
    rightPadding: Theme.spaceM
    spacing: Theme.spaceS + 1
    focusPolicy: Qt.TabFocus
    opacity: enabled ? 1 : Theme.disabledOpacity
    icon.width: Theme.toolIconSize
    icon.height: Theme.toolIconSize
    icon.color: inkColor
    Accessible.name: text || toolTip
    Accessible.description: toolTip
    onPointedAtChanged: tellToolTip()
    onVisualFocusChanged: tellToolTip()
    onPressed: ToolTips.end(root)

    contentItem: IconLabel {
        spacing: root.spacing
        display: root.display
        icon: root.icon
        text: root.text
        font: root.font
        color: root.inkColor
    }

    background: Rectangle {
        radius: Theme.radius
        color: root.checked ? Theme.accentSoft : root.down ? Theme.pressedFill
                                                           : root.hovered ? Theme.hoverFill : "transparent"
        border.width: root.visualFocus ? Theme.focusWidth : 0
        border.color: Theme.accent
    }
}
