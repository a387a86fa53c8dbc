import QtQuick

// Documents and their files. A save writes the picture and the editable document beside it as a pair.
QtObject {
    id: root

    required property ActionContext context
    readonly property bool saveInProgress: context.flow.saveInProgress
    readonly property bool available: !saveInProgress && !OpenDialogs.anyFileDialog

    readonly property ZmAction newDocument: ZmAction {
        text: qsTr("&New")
        toolTip: qsTr("New document")
        shortcut: StandardKey.New
        icon.name: "new_file"
        enabled: root.available
        onTriggered: root.context.flow.requestNewDocument()
    }

    readonly property ZmAction openDocument: ZmAction {
        text: qsTr("&Open…")
        toolTip: qsTr("Open a document or image")
        shortcut: StandardKey.Open
        icon.name: "open"
        enabled: root.available
        onTriggered: root.context.flow.requestOpenDocument()
    }

    readonly property ZmAction saveDocument: ZmAction {
        text: qsTr("&Save")
        toolTip: qsTr("Save image and document")
        shortcut: StandardKey.Save
        icon.name: "save"
        enabled: root.available
        onTriggered: root.context.flow.saveDocument(root.context.fixedDocumentBounds)
    }

    readonly property ZmAction saveDocumentAs: ZmAction {
        text: qsTr("Save &As…")
        shortcut: StandardKey.SaveAs
        enabled: root.available
        onTriggered: root.context.flow.saveDocumentAs(root.context.fixedDocumentBounds)
    }

    readonly property ZmAction quitApplication: ZmAction {
        text: qsTr("&Quit")
        shortcut: StandardKey.Quit
        onTriggered: root.context.window.close()
    }
}
