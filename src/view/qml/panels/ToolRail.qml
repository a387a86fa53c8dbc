pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// The tools, one below the other. In a low window they move together.
Pane {
    id: root

    required property WindowActions actions
    property bool positionedOnRight: false

    readonly property int buttonCount: 14
    readonly property real freeHeight: availableHeight - 2 * separatorHeight - (buttonCount + 1) * column.spacing
    readonly property real separatorHeight: 9
    readonly property real buttonSize: Math.min(Math.max(freeHeight / buttonCount, 22), Theme.toolButtonSize + 2)

    implicitWidth: 42
    padding: Theme.spaceS
    Accessible.role: Accessible.ToolBar
    Accessible.name: qsTr("Tools")

    background: Rectangle {
        color: Theme.surface

        Rectangle {
            x: root.positionedOnRight ? 0 : parent.width - 1
            width: 1
            height: parent.height
            color: Theme.hairline
        }
    }

    component Tool: Item {
        property alias action: button.action

        Layout.alignment: Qt.AlignHCenter
        implicitWidth: root.buttonSize
        implicitHeight: root.buttonSize

        ZmIconButton {
            id: button

            size: root.buttonSize
            pointedAt: pointer.hovered
            toolTipBeside: true
        }

        HoverHandler { id: pointer }
    }

    component Separator: ZmToolSeparator {
        Layout.alignment: Qt.AlignHCenter
        Layout.preferredHeight: root.separatorHeight
        horizontal: true
    }

    ColumnLayout {
        id: column

        width: parent.width
        spacing: Theme.spaceXS

        Tool { action: root.actions.tools.selection }
        Tool { action: root.actions.tools.draw }
        Tool { action: root.actions.tools.eraser }
        Tool { action: root.actions.tools.cloneStamp }
        Tool { action: root.actions.tools.exposureBrush }
        Tool { action: root.actions.tools.pathEdit }
        Separator {}
        Tool { action: root.actions.tools.skew }
        Tool { action: root.actions.tools.crop }
        Separator {}
        Tool { action: root.actions.selection.rectangle }
        Tool { action: root.actions.selection.ellipse }
        Tool { action: root.actions.selection.magicWand }
        Tool { action: root.actions.selection.polygon }
        Tool { action: root.actions.tools.fillSelection }
        Tool { action: root.actions.selection.clearRaster }
    }
}
