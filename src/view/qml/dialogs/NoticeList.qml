pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls

// The names of what the program is made of. Its current item has all that is told of one.
Rectangle {
    id: root

    property alias model: list.model
    property alias currentIndex: list.currentIndex
    readonly property Notice currentItem: list.currentItem as Notice

    component Notice: ItemDelegate {
        required property int index
        required property string name
        required property string version
        required property string licenseName
        required property url homePage
        required text
    }

    radius: Theme.radius
    color: Theme.sunken
    border.width: list.activeFocus ? Theme.focusWidth : 1
    border.color: list.activeFocus ? Theme.accent : Theme.hairline

    ListView {
        id: list

        anchors.fill: parent
        anchors.margins: Theme.spaceS
        clip: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Licenses")
        ScrollBar.vertical: ZmScrollBar {}

        delegate: Notice {
            id: entry

            readonly property bool current: ListView.isCurrentItem
            readonly property color inkColor: current ? Theme.accentText : Theme.text

            width: list.width
            height: 30
            padding: 0
            leftPadding: Theme.spaceM
            rightPadding: Theme.spaceM
            focusPolicy: Qt.NoFocus
            Accessible.role: Accessible.ListItem
            Accessible.name: name
            Accessible.selected: current
            onClicked: list.currentIndex = index

            contentItem: Item {
                Label {
                    width: parent.width - versionLabel.width - Theme.spaceM
                    height: parent.height
                    verticalAlignment: Text.AlignVCenter
                    text: entry.name
                    color: entry.inkColor
                    elide: Text.ElideRight
                    textFormat: Text.PlainText
                }

                Label {
                    id: versionLabel

                    anchors.right: parent.right
                    height: parent.height
                    verticalAlignment: Text.AlignVCenter
                    text: entry.version
                    color: Qt.alpha(entry.inkColor, 0.7)
                    font.pixelSize: Theme.fontSmall
                    textFormat: Text.PlainText
                }
            }

            background: Rectangle {
                radius: Theme.radius - 1
                color: entry.current ? Theme.accent : entry.hovered ? Theme.hoverFill : "transparent"
            }
        }
    }
}
