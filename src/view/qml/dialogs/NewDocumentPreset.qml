import QtQuick
import QtQuick.Controls

// A size to choose: its page drawn small, its name and its sides; the first of a group under the name of the group.
Item {
    id: root

    required property int index
    required property DocumentPreset modelData
    readonly property DocumentPreset preset: modelData
    property bool beginsGroup: false
    property bool current: false

    readonly property real pageScale: 18 / Math.max(preset.width, preset.height)
    readonly property color inkColor: current ? Theme.accentText : Theme.text

    signal chosen()
    signal triggered()

    implicitHeight: row.y + row.height
    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("%1, %2 by %3 pixels").arg(preset.name).arg(preset.width).arg(preset.height)
    Accessible.selected: current
    Accessible.onPressAction: chosen()

    Label {
        id: heading

        visible: root.beginsGroup
        leftPadding: Theme.spaceM
        topPadding: root.index === 0 ? Theme.spaceS : Theme.spaceL
        bottomPadding: Theme.spaceS
        text: root.preset.group
        color: Theme.mutedText
        font.pixelSize: Theme.fontSmall
        font.weight: Font.DemiBold
    }

    Rectangle {
        id: row

        y: root.beginsGroup ? heading.height : 0
        width: root.width
        height: 28
        radius: Theme.radius - 1
        color: root.current ? Theme.accent : hover.hovered ? Theme.hoverFill : "transparent"

        Item {
            x: Theme.spaceM
            width: 20
            height: parent.height

            Rectangle {
                anchors.centerIn: parent
                width: Math.round(root.preset.width * root.pageScale)
                height: Math.round(root.preset.height * root.pageScale)
                color: "transparent"
                border.color: Qt.alpha(root.inkColor, 0.75)
                radius: 1
            }
        }

        Label {
            x: Theme.spaceM + 20 + Theme.spaceM
            height: parent.height
            verticalAlignment: Text.AlignVCenter
            text: root.preset.name
            color: root.inkColor
        }

        Label {
            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceM
            height: parent.height
            verticalAlignment: Text.AlignVCenter
            text: "%1 × %2".arg(root.preset.width).arg(root.preset.height)
            color: Qt.alpha(root.inkColor, 0.7)
            font.pixelSize: Theme.fontSmall
        }

        HoverHandler { id: hover }

        TapHandler {
            onTapped: root.chosen()
            onDoubleTapped: root.triggered()
        }
    }
}
