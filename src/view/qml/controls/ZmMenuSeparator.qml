import QtQuick
import QtQuick.Controls

MenuSeparator {
    id: root

    topPadding: 4
    bottomPadding: 4
    leftPadding: 8
    rightPadding: 8
    contentItem: Rectangle {
        implicitHeight: 1
        color: root.palette.mid
        opacity: 0.5
    }
}
