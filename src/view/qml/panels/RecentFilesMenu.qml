pragma ComponentBehavior: Bound

import QtQuick

// The documents that were opened or saved last.
ZmMenu {
    id: root

    required property ApplicationSettings settings

    signal fileChosen(string path)

    title: qsTr("Open &Recent")

    Instantiator {
        model: root.settings.recentFilePaths
        delegate: ZmMenuItem {
            id: entry

            required property string modelData
            required property int index

            text: qsTr("%1. %2").arg(index + 1).arg(root.settings.recentFileDisplayName(modelData).replace(/&/g, "&&"))
            onTriggered: root.fileChosen(modelData)
            onHoveredChanged: ToolTips.ask(entry, entry.hovered ? entry.modelData : "", true)
        }
        onObjectAdded: (index, item) => root.insertItem(index, item)
        onObjectRemoved: (index, item) => root.removeItem(item)
    }
}
