import QtQuick
import QtQuick.Controls

// The menu bar, set off from what lies below by a hairline.
MenuBar {
    id: root

    padding: 2
    bottomPadding: 3
    delegate: MenuBarItem {
        id: item

        implicitHeight: 24
        leftPadding: 9
        rightPadding: 9
        topPadding: 0
        bottomPadding: 0
        background: Rectangle {
            radius: 4
            color: item.highlighted ? root.palette.highlight : "transparent"
        }
    }

    background: Rectangle {
        color: root.palette.window

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: root.palette.mid
            opacity: 0.5
        }
    }
}
