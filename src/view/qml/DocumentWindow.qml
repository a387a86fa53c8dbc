import QtQuick
import QtQuick.Controls
import ZelmoraAtelier

// A window that documents flow through: by its own names, the state of the flow and the ways into it. It comes to the
// front and closes as the flow asks.
ApplicationWindow {
    id: window

    required property DocumentFlow documentFlow

    // What waits for the answer about unsaved changes.
    readonly property int noPendingUnsavedAction: DocumentFlow.UnsavedAction.None
    readonly property int closePendingUnsavedAction: DocumentFlow.UnsavedAction.Close
    readonly property int newDocumentPendingUnsavedAction: DocumentFlow.UnsavedAction.NewDocument
    readonly property int openDocumentPendingUnsavedAction: DocumentFlow.UnsavedAction.OpenDocument
    readonly property int openRecentPendingUnsavedAction: DocumentFlow.UnsavedAction.OpenRecent
    readonly property int openFilePendingUnsavedAction: DocumentFlow.UnsavedAction.OpenFile
    readonly property int applicationFileOpenPendingUnsavedAction: DocumentFlow.UnsavedAction.ApplicationFileOpen

    readonly property int pendingUnsavedAction: documentFlow.pendingUnsavedAction
    readonly property string pendingRecentFilePath: documentFlow.pendingRecentFilePath
    readonly property url pendingOpenFileUrl: documentFlow.pendingOpenFileUrl
    readonly property bool unsavedChangesWarningEnabled: documentFlow.unsavedChangesWarningEnabled
    readonly property bool closeConfirmed: documentFlow.closeConfirmed
    readonly property bool applicationFileOpenActive: documentFlow.applicationFileOpenActive
    readonly property bool applicationFileOpenErrorPending: documentFlow.applicationFileOpenErrorPending
    readonly property url activeApplicationFileOpenUrl: documentFlow.activeApplicationFileOpenUrl
    readonly property bool applicationFileOpenUiBlocked: OpenDialogs.any

    function requestUnsavedAction(action: int, dialogAction: int, recentFilePath: string, openFileUrl: url) {
        documentFlow.requestUnsavedAction(action, dialogAction, recentFilePath, openFileUrl)
    }
    function executeUnsavedAction(action: int, recentFilePath: string, openFileUrl: url) {
        documentFlow.executeUnsavedAction(action, recentFilePath, openFileUrl)
    }
    function continuePendingUnsavedAction() { documentFlow.continuePendingUnsavedAction() }
    function abandonPendingUnsavedAction() { documentFlow.abandonPendingUnsavedAction() }
    function requestNewDocument() { documentFlow.requestNewDocument() }
    function requestOpenDocument() { documentFlow.requestOpenDocument() }
    function requestOpenRecent(path: string) { documentFlow.requestOpenRecent(path) }
    function requestOpenFile(url: url, applicationRequest: bool) {
        documentFlow.requestOpenFile(url, applicationRequest)
    }
    function loadDocumentFile(url: url) { documentFlow.loadDocumentFile(url) }
    function loadRecentDocument(path: string) { documentFlow.loadRecentDocument(path) }
    function processPendingApplicationFileOpenRequest() { documentFlow.processPendingApplicationFileOpenRequest() }
    function finishApplicationFileOpenRequest() { documentFlow.finishApplicationFileOpenRequest() }
    function handleDroppedFiles(urls: list<url>) { documentFlow.handleDroppedFiles(urls) }

    function comeToTheFront() {
        if (visibility === Window.Hidden || visibility === Window.Minimized)
            showMaximized()     // show() would take the maximised state away
        raise()
        requestActivate()
    }

    onClosing: close => close.accepted = documentFlow.requestClose()

    Connections {
        target: window.documentFlow

        function onRaiseRequested() {
            window.comeToTheFront()
        }

        function onCloseRequested() {
            window.close()
        }
    }

    Binding {
        target: window.documentFlow
        property: "applicationFileOpenUiBlocked"
        value: window.applicationFileOpenUiBlocked
    }
}
