import QtQuick
import QtQuick.Controls

MenuSeparator {
    topPadding: Theme.spaceS
    bottomPadding: Theme.spaceS
    leftPadding: Theme.spaceM
    rightPadding: Theme.spaceM
    contentItem: Rectangle {
        implicitHeight: 1
        color: Theme.hairline
    }
}
