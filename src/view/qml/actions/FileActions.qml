import QtQuick
import QtQuick.Controls

// Documents and their files. A save writes the picture and the editable document beside it as a pair.
QtObject {
    id: root

    required property ActionContext context
    readonly property bool saveInProgress: context.exporter.sessionSaveBusy
                                           || context.dialogs.saveProgressDialog.visible
    readonly property bool available: !saveInProgress && !context.dialogs.fileDialogOpen

    // No save has begun, or it could not be carried out; the reason is on the screen.
    signal saveFailed()

    function openExportDialog() {
        if (context.exporter.begin(context.fixedDocumentBounds))
            context.dialogs.exportDialog.open()
        else
            reportSaveFailure()
    }

    // The progress shows before the document is written, which takes the thread.
    function saveSessionExport() {
        context.dialogs.saveProgressDialog.open()
        context.window.carryOut(startSessionSave)
    }

    function startSessionSave() {
        if (!context.exporter.saveToSessionExport())
            reportSaveFailure()
    }

    function reportSaveFailure() {
        context.dialogs.saveProgressDialog.close()
        context.dialogs.exportErrorDialog.open()
        saveFailed()
    }

    readonly property ZmAction newDocument: ZmAction {
        text: qsTr("&New")
        toolTip: qsTr("New document")
        shortcut: StandardKey.New
        icon.name: "new_file"
        enabled: root.available
        onTriggered: {
            root.context.commitTextEditing()
            root.context.window.requestNewDocument()
        }
    }

    readonly property ZmAction openDocument: ZmAction {
        text: qsTr("&Open…")
        toolTip: qsTr("Open a document or image")
        shortcut: StandardKey.Open
        icon.name: "open"
        enabled: root.available
        onTriggered: {
            root.context.commitTextEditing()
            root.context.window.requestOpenDocument()
        }
    }

    readonly property ZmAction saveDocument: ZmAction {
        text: qsTr("&Save")
        toolTip: qsTr("Save image and document")
        shortcut: StandardKey.Save
        icon.name: "save"
        enabled: root.available
        onTriggered: {
            root.context.commitTextEditing()
            if (root.context.exporter.hasSessionExport)
                root.saveSessionExport()
            else
                root.openExportDialog()
        }
    }

    readonly property ZmAction saveDocumentAs: ZmAction {
        text: qsTr("Save &As…")
        shortcut: StandardKey.SaveAs
        enabled: root.available
        onTriggered: {
            root.context.commitTextEditing()
            root.openExportDialog()
        }
    }

    readonly property ZmAction quitApplication: ZmAction {
        text: qsTr("&Quit")
        shortcut: StandardKey.Quit
        onTriggered: root.context.window.close()
    }
}
