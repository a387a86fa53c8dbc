pragma ComponentBehavior: Bound

import QtQuick

// What menus, lists and dialogs lie on: set off from the window by an outline and a soft shadow.
Item {
    id: root

    property real radius: Theme.radius + 1
    property color color: Theme.dark ? Theme.raised : Theme.palette.base
    readonly property int shadowSteps: 6

    // Frames of growing size and falling strength: a blur without an effect's texture.
    Repeater {
        model: root.shadowSteps

        Rectangle {
            required property int index

            anchors.fill: parent
            anchors.margins: -1.5 * index
            anchors.topMargin: 3 - 1.5 * index
            anchors.bottomMargin: -3 - 1.5 * index
            radius: root.radius + 1.5 * index
            color: Qt.alpha("black", Theme.shadow.a / (root.shadowSteps * 0.9))
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: root.color
        border.color: Theme.outline
    }
}
