import QtQuick
import QtQuick.Controls

// Asks what becomes of unsaved changes before they would be lost. The answer comes as one signal, after the dialog has
// closed, so that what follows may open another.
ZmMessageDialog {
    id: root

    readonly property int exitApplicationAction: 0
    readonly property int createDocumentAction: 1
    readonly property int openDocumentAction: 2

    property int action: exitApplicationAction
    property var answer: dismissed      // a signal

    signal saveRequested()
    signal continueRequested()
    signal dismissed()

    function showForAction(dialogAction) {
        action = dialogAction
        open()
    }

    function closeWith(signalOfAnswer) {
        answer = signalOfAnswer
        close()
    }

    title: [
        qsTr("Save changes before exiting?"),
        qsTr("Save changes before creating a new document?"),
        qsTr("Save changes before opening another document?")
    ][action]
    message: [
        qsTr("This document has unsaved changes. If you exit without saving, your changes will be lost."),
        qsTr("This document has unsaved changes. If you create a new document without saving, your changes will be lost."),
        qsTr("This document has unsaved changes. If you open another document without saving, your changes will be lost.")
    ][action]
    iconName: "warning"
    defaultButton: saveButton
    onAboutToShow: answer = dismissed
    onOpened: saveButton.forceActiveFocus()
    onClosed: Qt.callLater(answer)       // closing ends by giving the focus back, which a next dialog would lose

    footer: ZmDialogFooter {
        dialog: root
        onAccepted: root.closeWith(root.saveRequested)
        onRejected: root.reject()
        onDiscarded: root.closeWith(root.continueRequested)

        ZmDialogButton {
            text: [qsTr("Exit Anyway"), qsTr("Create Anyway"), qsTr("Open Anyway")][root.action]
            DialogButtonBox.buttonRole: DialogButtonBox.DestructiveRole
        }

        ZmDialogButton {
            text: qsTr("Cancel")
            DialogButtonBox.buttonRole: DialogButtonBox.RejectRole
        }

        ZmDialogButton {
            id: saveButton

            text: qsTr("Save")
            highlighted: true
            DialogButtonBox.buttonRole: DialogButtonBox.AcceptRole
        }
    }
}
