import QtQuick
import QtQuick.Controls

// An entry of a menu: check mark, text, and the keys of its action on the right.
MenuItem {
    id: root

    readonly property color textColor: highlighted ? palette.highlightedText : palette.windowText
    readonly property real columnGap: 28

    implicitHeight: 26
    leftPadding: columnGap - (checkable ? indicator.width + spacing : 0)    // what the style adds for the indicator
    rightPadding: (keys.text || subMenu ? columnGap : 0) + keys.implicitWidth + 12
    topPadding: 0
    bottomPadding: 0
    opacity: enabled ? 1 : 0.45
    icon.color: textColor

    indicator: Item {
        x: 11
        y: (root.height - height) / 2 - 2
        width: 5
        height: 10
        rotation: 45
        visible: root.checked

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

    arrow: Item {
        x: root.width - width - 12
        y: (root.height - height) / 2
        width: 6
        height: 6
        rotation: 45
        visible: root.subMenu

        Rectangle {
            width: parent.width
            height: 1.5
            color: root.textColor
            antialiasing: true
        }

        Rectangle {
            anchors.right: parent.right
            width: 1.5
            height: parent.height
            color: root.textColor
            antialiasing: true
        }
    }

    background: Rectangle {
        radius: 3
        color: root.highlighted ? root.palette.highlight : "transparent"
    }

    Label {
        id: keys

        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        text: shortcut.nativeText
        color: root.textColor
        opacity: 0.7
    }

    // Never active; it only spells the action's keys as the platform does.
    Shortcut {
        id: shortcut

        sequence: root.action?.shortcut ?? ""
        enabled: false
    }
}
