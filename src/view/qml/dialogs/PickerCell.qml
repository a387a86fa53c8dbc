pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls

// A picture with its name, to be picked. A click makes it current, a double click picks it.
Item {
    id: root

    property string name
    property string previewSource
    property string tooltipSource   // a larger picture, shown while the pointer rests on the cell
    property size tooltipSize
    property color previewGround: "transparent"
    property real previewWidth: 88
    property real previewHeight: 88
    property real padding: 6
    property bool current: false
    property bool gridFocused: false

    signal chosen()
    signal activated()

    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.selectable: true
    Accessible.selected: current
    Accessible.onPressAction: activated()

    Rectangle {
        anchors.fill: parent
        anchors.margins: Theme.spaceXS
        radius: Theme.radius + 1
        color: root.current ? Theme.accentSoft : hover.hovered ? Theme.hoverFill : "transparent"
        border.width: root.current ? (root.gridFocused ? Theme.focusWidth : 1) : 0
        border.color: Theme.accent
    }

    Rectangle {
        anchors.fill: preview
        anchors.margins: -Theme.spaceS
        radius: Theme.radius
        color: root.previewGround
    }

    Image {
        id: preview

        anchors.horizontalCenter: parent.horizontalCenter
        y: root.padding + Theme.spaceS + Theme.spaceXS
        width: root.previewWidth
        height: root.previewHeight
        source: root.previewSource
        sourceSize: Qt.size(width, height)
        fillMode: Image.PreserveAspectFit
        asynchronous: true
        opacity: status === Image.Ready ? 1 : 0

        Behavior on opacity { NumberAnimation { duration: Theme.fadeMs } }
    }

    Label {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: preview.bottom
        anchors.topMargin: Theme.spaceS
        anchors.bottom: parent.bottom
        anchors.leftMargin: root.padding
        anchors.rightMargin: root.padding
        anchors.bottomMargin: Theme.spaceS
        text: root.name
        font.pixelSize: Theme.fontSmall + 1
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        textFormat: Text.PlainText
    }

    HoverHandler {
        id: hover

        onHoveredChanged: ToolTips.askForPicture(root, hovered ? root.tooltipSource : "", root.tooltipSize)
    }

    TapHandler {
        onTapped: root.chosen()
        onDoubleTapped: root.activated()
    }
}
