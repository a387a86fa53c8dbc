import QtQuick
import QtQuick.Controls

ScrollBar {
    id: root

    padding: 2
    minimumSize: 0.08
    visible: policy === ScrollBar.AlwaysOn || (policy === ScrollBar.AsNeeded && size < 1)

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: Qt.alpha(Theme.text, root.pressed ? 0.55 : root.hovered ? 0.4 : 0.25)
    }

    background: null
}
