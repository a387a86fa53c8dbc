import QtQuick
import QtQuick.Controls

QtObject {
    id: root

    required property ActionContext context

    readonly property Action openDocument: Action {
        text: qsTr("&Open…")
        shortcut: StandardKey.Open
        onTriggered: root.context.window.requestOpenDocument()
    }

    readonly property Action quitApplication: Action {
        text: qsTr("&Quit")
        shortcut: StandardKey.Quit
        onTriggered: root.context.window.close()
    }
}
