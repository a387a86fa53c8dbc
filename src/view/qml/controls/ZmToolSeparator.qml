import QtQuick

// A hairline between groups of buttons; lies when `horizontal`.
Item {
    property bool horizontal: false

    implicitWidth: horizontal ? Theme.toolButtonSize : Theme.spaceL + 1
    implicitHeight: horizontal ? Theme.spaceL + 1 : Theme.toolButtonSize

    Rectangle {
        anchors.centerIn: parent
        width: parent.horizontal ? parent.width - 2 * Theme.spaceS : 1
        height: parent.horizontal ? 1 : parent.height - 2 * Theme.spaceS
        color: Theme.hairline
    }
}
