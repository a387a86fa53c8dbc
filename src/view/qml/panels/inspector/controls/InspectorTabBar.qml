pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts

// The strip of tabs. Wide names take room from narrow ones before any is cut. Left and Right go to the next tab.
Rectangle {
    id: root

    required property list<InspectorTab> tabs
    required property int currentPanel

    signal tabRequested(int panelIndex)

    component Tab: ZmTabButton {
        required property InspectorTab modelData
        required property int index
    }

    function step(from, by) {
        const count = repeater.count
        for (let i = (from + by + count) % count; i !== from; i = (i + by + count) % count) {
            const button = repeater.itemAt(i) as Tab
            if (!button.visible)
                continue
            tabRequested(button.modelData.panelIndex)
            button.forceActiveFocus(Qt.TabFocusReason)
            return
        }
    }

    implicitHeight: row.implicitHeight + 1
    color: Theme.surface
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Inspector")

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.hairline
    }

    RowLayout {
        id: row

        width: parent.width
        spacing: 0

        Repeater {
            id: repeater

            model: root.tabs

            Tab {
                id: button

                Layout.fillWidth: true
                Layout.minimumWidth: 34
                Layout.preferredWidth: implicitContentWidth + 2 * Theme.spaceXS
                visible: modelData.available
                text: modelData.text
                icon.name: modelData.iconName
                checked: root.currentPanel === modelData.panelIndex
                focusPolicy: checked ? Qt.TabFocus : Qt.NoFocus
                Keys.onLeftPressed: root.step(index, -1)
                Keys.onRightPressed: root.step(index, 1)
                onClicked: root.tabRequested(modelData.panelIndex)
                onHoveredChanged: ToolTips.ask(button, hovered && width < implicitContentWidth ? text : "", false)
                onPressed: ToolTips.end(button)
            }
        }
    }
}
