pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls

// The names of the groups of a picker, for going there.
ListView {
    id: root

    property string iconRole

    signal chosen(int index)

    implicitWidth: 168
    clip: true
    activeFocusOnTab: true
    keyNavigationEnabled: false
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    spacing: 1
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Categories")
    Keys.onUpPressed: chosen(Math.max(0, currentIndex - 1))
    Keys.onDownPressed: chosen(Math.min(count - 1, currentIndex + 1))
    ScrollBar.vertical: ZmScrollBar {}

    delegate: ItemDelegate {
        id: entry

        required property int index
        required property var modelData
        readonly property bool current: ListView.isCurrentItem

        width: root.width - Theme.spaceL
        height: 30
        leftPadding: Theme.spaceM
        rightPadding: Theme.spaceM
        focusPolicy: Qt.NoFocus
        text: modelData.category
        Accessible.role: Accessible.ListItem
        Accessible.name: text
        Accessible.selected: current
        onClicked: root.chosen(index)

        contentItem: Row {
            spacing: Theme.spaceM

            ZmIcon {
                anchors.verticalCenter: parent.verticalCenter
                visible: name
                name: entry.modelData[root.iconRole] ?? ""
            }

            Label {
                height: parent.height
                verticalAlignment: Text.AlignVCenter
                text: entry.text
                font.weight: entry.current ? Font.DemiBold : Font.Normal
                elide: Text.ElideRight
                textFormat: Text.PlainText
            }
        }

        background: Rectangle {
            radius: Theme.radius
            color: entry.current ? Theme.accentSoft : entry.hovered ? Theme.hoverFill : "transparent"

            FocusFrame {
                control: entry
                visible: entry.current && root.activeFocus
            }
        }
    }
}
