import QtQuick

QtObject {
    id: root

    required property ActionContext context

    readonly property ZmAction webSite: ZmAction {
        text: qsTr("Zelmora Atelier on the &Web")
        icon.name: "help"
        onTriggered: Qt.openUrlExternally(root.context.webSiteUrl)
    }

    readonly property ZmAction about: ZmAction {
        text: qsTr("&About Zelmora Atelier")
        icon.name: "info"
        onTriggered: root.context.dialogs.aboutDialog.open()
    }
}
