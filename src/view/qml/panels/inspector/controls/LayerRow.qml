pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// One layer in the list. Shows what it is told; pressing, dragging and keys belong to the list.
Item {
    id: root

    required property string layerId
    required property string name
    required property bool selected
    required property bool hidden
    required property string layerType
    required property bool hasRasterSelection
    required property string thumbnailSource

    property bool keyboardFocus: false
    property bool renaming: false
    // The row that follows the pointer while a layer is dragged, and the one that it left.
    property bool lifted: false
    property bool dimmed: false
    property bool hoverable: true
    property Action mergeAction: null
    property real endMargin: Theme.spaceM     // more beside a scroll bar

    readonly property var typeIcons: ({ text: "tab_text_layer", shape: "tab_shape_layer", object: "tab_layers" })
    readonly property bool hovered: hover.hovered
    // Tab does not go through a hundred rows.
    readonly property int buttonFocus: selected && !lifted ? Qt.TabFocus : Qt.NoFocus

    signal hiddenRequested(bool hidden)
    signal renameRequested(string name)
    signal renameEnded()
    signal selectionRequested()

    function finishRename() {
        (renameField.item as RenameField)?.finish(true)
    }

    implicitHeight: 44
    opacity: dimmed ? Theme.disabledOpacity : 1
    Accessible.role: Accessible.ListItem
    Accessible.name: hidden ? qsTr("Layer %1, hidden").arg(name) : qsTr("Layer %1").arg(name)
    Accessible.description: hasRasterSelection ? qsTr("Has a raster selection") : ""
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.ignored: lifted
    Accessible.onPressAction: selectionRequested()

    HoverHandler {
        id: hover
        enabled: root.hoverable
    }

    PopupSurface {
        anchors.fill: parent
        anchors.leftMargin: Theme.spaceS
        anchors.rightMargin: root.endMargin - Theme.spaceS
        visible: root.lifted
    }

    Rectangle {
        anchors.fill: parent
        anchors.topMargin: 1
        anchors.bottomMargin: 1
        anchors.leftMargin: Theme.spaceS
        anchors.rightMargin: root.endMargin - Theme.spaceS
        radius: Theme.radius
        color: root.selected ? Theme.accentSoft : root.hovered ? Theme.hoverFill : "transparent"
        border.width: root.keyboardFocus ? Theme.focusWidth : 0
        border.color: Theme.accent
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.spaceM
        anchors.rightMargin: root.endMargin
        spacing: Theme.spaceS

        ZmSmallIconButton {
            focusPolicy: root.buttonFocus
            icon.name: root.hidden ? "visibility_off" : "visibility_on"
            icon.color: root.hidden ? Theme.mutedText : Theme.text
            toolTip: root.hidden ? qsTr("Show layer") : qsTr("Hide layer")
            onClicked: root.hiddenRequested(!root.hidden)
        }

        LayerThumbnail {
            Layout.preferredWidth: 36
            Layout.preferredHeight: 36
            source: root.thumbnailSource
            opacity: root.hidden ? Theme.disabledOpacity : 1

            // A picture tells by itself that it is one.
            Rectangle {
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                anchors.margins: -1
                width: 17
                height: 17
                radius: 4
                color: Theme.surface
                border.color: Theme.outline
                visible: root.layerType !== "image"

                ZmIcon {
                    anchors.centerIn: parent
                    size: 13
                    name: root.typeIcons[root.layerType] ?? ""
                }
            }
        }

        Label {
            Layout.fillWidth: true
            Layout.leftMargin: Theme.spaceS
            text: root.name
            color: root.hidden ? Theme.mutedText : Theme.text
            elide: Text.ElideRight
            textFormat: Text.PlainText
            visible: !root.renaming
        }

        Loader {
            id: renameField

            Layout.fillWidth: true
            active: root.renaming
            visible: active

            sourceComponent: RenameField {
                name: root.name
                onCommitted: name => root.renameRequested(name)
                onEnded: {
                    renameField.focus = false    // or the list would give the keyboard back to it
                    root.renameEnded()
                }
            }
        }

        ZmIcon {
            name: "raster_selection"
            visible: root.hasRasterSelection
        }

        ZmSmallIconButton {
            focusPolicy: root.buttonFocus
            icon.name: "collapse_layer_down"
            toolTip: qsTr("Merge with layer below")
            enabled: root.selected && (root.mergeAction?.enabled ?? false)
            visible: !root.lifted && root.mergeAction
            onClicked: root.mergeAction.trigger()
        }

        ZmIcon {
            name: "drag_handle"
            color: Theme.mutedText
            opacity: root.hovered || root.selected ? 1 : 0.45

            HoverHandler {
                cursorShape: Qt.OpenHandCursor
            }
        }
    }
}
