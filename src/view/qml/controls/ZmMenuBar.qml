import QtQuick
import QtQuick.Controls

// The menu bar.
MenuBar {
    id: root

    padding: Theme.spaceXS
    leftPadding: Theme.spaceS
    delegate: MenuBarItem {
        id: item

        implicitHeight: 26
        Accessible.name: Theme.withoutMnemonic(text)
        leftPadding: Theme.spaceM + 1
        rightPadding: Theme.spaceM + 1
        topPadding: 0
        bottomPadding: 0
        palette.windowText: Theme.text
        palette.buttonText: Theme.text
        palette.highlightedText: Theme.text
        background: Rectangle {
            radius: Theme.radius
            color: item.down ? Theme.pressedFill : item.highlighted ? Theme.hoverFill : "transparent"
        }
    }

    background: Rectangle {
        color: Theme.surface
    }
}
