pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// The bar below the menus.
Pane {
    id: root

    required property WindowActions actions

    // In a narrow window the clipboard's buttons do without their words.
    readonly property bool roomy: width >= 1100

    component ClipboardButton: ZmToolButton {
        display: root.roomy ? AbstractButton.TextBesideIcon : AbstractButton.IconOnly
    }

    implicitHeight: 42
    padding: 0
    leftPadding: Theme.spaceS + Theme.spaceXS
    rightPadding: Theme.spaceM
    Accessible.role: Accessible.ToolBar
    Accessible.name: qsTr("Main tool bar")

    background: Rectangle {
        color: Theme.surface

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Theme.hairline
        }
    }

    RowLayout {
        anchors.fill: parent
        anchors.bottomMargin: 1
        spacing: Theme.spaceXS

        ZmIconButton { action: root.actions.file.newDocument }
        ZmIconButton { action: root.actions.file.openDocument }
        ZmSplitButton {
            action: root.actions.file.saveDocument
            menuName: qsTr("More ways to save")

            ZmMenuItem { action: root.actions.file.saveDocumentAs }
        }
        ZmToolSeparator {}
        ZmSplitButton {
            action: root.actions.edit.undo
            menuName: qsTr("More of the history")

            ZmMenuItem { action: root.actions.edit.redo }
        }
        ZmToolSeparator {}
        ClipboardButton { action: root.actions.edit.cut }
        ClipboardButton { action: root.actions.edit.copy }
        ClipboardButton { action: root.actions.edit.paste }
        ZmToolSeparator {}
        Label {
            Layout.rightMargin: Theme.spaceS
            text: qsTr("Insert:")
            color: Theme.mutedText
        }
        ZmToolButton { action: root.actions.layers.addImage }
        ZmToolButton { action: root.actions.layers.addText }
        ZmToolButton { action: root.actions.layers.addShape }
        ZmToolSeparator {}
        ZmIconButton { action: root.actions.layers.moveUp }
        ZmIconButton { action: root.actions.layers.moveDown }
        Item { Layout.fillWidth: true }
    }
}
