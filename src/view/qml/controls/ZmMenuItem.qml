import QtQuick
import QtQuick.Controls

// An entry of a menu: check mark or icon, text, and the keys of its action on the right.
MenuItem {
    id: root

    readonly property color textColor: highlighted ? Theme.accentText : Theme.text
    readonly property bool hasIcon: icon.name || icon.source.toString()
    readonly property real iconColumn: Theme.iconSize + 2 * Theme.spaceM
    readonly property real keyColumn: Theme.spaceXXL + Theme.spaceS

    implicitHeight: 26
    // Less what the style adds for the indicator.
    leftPadding: (hasIcon ? Theme.spaceM : iconColumn) - (checkable ? indicator.width + spacing : 0)
    rightPadding: (keys.text || subMenu ? keyColumn : 0) + keys.implicitWidth + Theme.spaceL
    topPadding: 0
    bottomPadding: 0
    spacing: Theme.spaceM
    opacity: enabled ? 1 : Theme.disabledOpacity
    icon.width: Theme.iconSize
    icon.height: Theme.iconSize
    icon.color: textColor
    palette.windowText: Theme.text
    palette.text: Theme.text
    palette.highlightedText: Theme.accentText

    indicator: Item {
        x: 11
        y: (root.height - height) / 2 - 2
        width: 5
        height: 10
        rotation: 45
        visible: root.checked && !root.hasIcon

        Rectangle {
            anchors.right: parent.right
            width: 2
            height: parent.height
            color: root.textColor
            antialiasing: true
        }

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 2
            color: root.textColor
            antialiasing: true
        }
    }

    arrow: Chevron {
        x: root.width - width - Theme.spaceL
        y: (root.height - height) / 2
        rotation: -90
        color: root.textColor
        visible: root.subMenu
    }

    background: Rectangle {
        radius: Theme.radius - 1
        color: root.highlighted ? Theme.accent : "transparent"

        Rectangle {
            x: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.iconSize + 2 * Theme.spaceS
            height: width - 2
            radius: Theme.radius - 1
            color: Theme.accentSoft
            visible: root.checked && root.hasIcon && !root.highlighted
        }
    }

    Label {
        id: keys

        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceL
        anchors.verticalCenter: parent.verticalCenter
        text: (root.action as ZmAction)?.keys ?? ""
        color: root.textColor
        opacity: 0.65
    }
}
