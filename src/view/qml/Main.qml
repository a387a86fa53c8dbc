import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import ZelmoraAtelier // after QtQuick, which has a Canvas too

// The window: menus, bars, canvas and inspector, and the ways of documents: opening, saving, closing, and the question
// about unsaved changes before them.
ApplicationWindow {
    id: window

    // What waits for the answer about unsaved changes.
    readonly property int noPendingUnsavedAction: 0
    readonly property int closePendingUnsavedAction: 1
    readonly property int newDocumentPendingUnsavedAction: 2
    readonly property int openDocumentPendingUnsavedAction: 3
    readonly property int openRecentPendingUnsavedAction: 4
    readonly property int openFilePendingUnsavedAction: 5
    readonly property int applicationFileOpenPendingUnsavedAction: 6

    property int pendingUnsavedAction: noPendingUnsavedAction
    property string pendingRecentFilePath
    property url pendingOpenFileUrl
    readonly property bool unsavedChangesWarningEnabled: true
    property bool closeConfirmed: false      // the next close goes through

    // A file named by the command line or the system that is being opened.
    property bool applicationFileOpenActive: false
    property bool applicationFileOpenErrorPending: false
    property url activeApplicationFileOpenUrl
    readonly property bool applicationFileOpenUiBlocked: windowDialogs.anyVisible

    // The whole document is in view and stays so while the window changes its size, until the view is moved.
    property bool viewFitted: false
    property bool fitting: false

    readonly property UnsavedChangesDialog unsavedQuestion: windowDialogs.unsavedChangesDialog
    readonly property bool fullScreen: visibility === Window.FullScreen
    property int visibilityBeforeFullScreen: Window.Maximized

    // In one go: a file name may itself hold what looks like a place marker.
    function filled(pattern, words) {
        return pattern.replace(/%([1-9])/g, (marker, number) => words[number - 1])
    }

    // --- Unsaved changes ---

    function requestUnsavedAction(action, dialogAction, recentFilePath, openFileUrl) {
        if (applicationFileOpenActive && action !== applicationFileOpenPendingUnsavedAction)
            return
        if (!unsavedChangesWarningEnabled || commandHistory.clean) {
            clearPendingUnsavedAction()
            executeUnsavedAction(action, recentFilePath, openFileUrl)
            return
        }
        pendingUnsavedAction = action
        pendingRecentFilePath = recentFilePath
        pendingOpenFileUrl = openFileUrl
        unsavedQuestion.showForAction(dialogAction)
    }

    function executeUnsavedAction(action, recentFilePath, openFileUrl) {
        switch (action) {
        case closePendingUnsavedAction:
            Qt.callLater(closeConfirmedWindow)
            break
        case newDocumentPendingUnsavedAction:
            Qt.callLater(windowDialogs.resetBoardDialog.open)
            break
        case openDocumentPendingUnsavedAction:
            Qt.callLater(windowDialogs.documentOpenDialog.open)
            break
        case openRecentPendingUnsavedAction:
            Qt.callLater(loadRecentDocument, recentFilePath)
            break
        case openFilePendingUnsavedAction:
        case applicationFileOpenPendingUnsavedAction:
            Qt.callLater(loadDocumentFile, openFileUrl)
            break
        }
    }

    function clearPendingUnsavedAction() {
        pendingUnsavedAction = noPendingUnsavedAction
        pendingRecentFilePath = ""
        pendingOpenFileUrl = ""
    }

    function continuePendingUnsavedAction() {
        const action = pendingUnsavedAction
        const recentFilePath = pendingRecentFilePath
        const openFileUrl = pendingOpenFileUrl
        clearPendingUnsavedAction()
        executeUnsavedAction(action, recentFilePath, openFileUrl)
        Qt.callLater(processPendingApplicationFileOpenRequest)
    }

    function abandonPendingUnsavedAction() {
        const fileOpenWasPending = pendingUnsavedAction === applicationFileOpenPendingUnsavedAction
        clearPendingUnsavedAction()
        if (fileOpenWasPending)
            finishApplicationFileOpenRequest()
        else
            Qt.callLater(processPendingApplicationFileOpenRequest)
    }

    function closeConfirmedWindow() {
        closeConfirmed = true
        close()
    }

    // --- New and open ---

    function requestNewDocument() {
        requestUnsavedAction(newDocumentPendingUnsavedAction, unsavedQuestion.createDocumentAction, "", "")
    }

    function requestOpenDocument() {
        requestUnsavedAction(openDocumentPendingUnsavedAction, unsavedQuestion.openDocumentAction, "", "")
    }

    function requestOpenRecent(path) {
        canvas.commitTextEditing()
        requestUnsavedAction(openRecentPendingUnsavedAction, unsavedQuestion.openDocumentAction, path, "")
    }

    function requestOpenFile(url, applicationRequest) {
        if ((applicationFileOpenActive && !applicationRequest) || windowActions.file.saveInProgress)
            return
        canvas.commitTextEditing()
        const action = applicationRequest ? applicationFileOpenPendingUnsavedAction : openFilePendingUnsavedAction
        requestUnsavedAction(action, unsavedQuestion.openDocumentAction, "", url)
    }

    function loadDocumentFile(url) {
        busyCover.during(() => {
            const requested = applicationFileOpenActive && url.toString() === activeApplicationFileOpenUrl.toString()
            if (documentFileController.load(url)) {
                fitLoadedDocumentToView()
                if (requested)
                    finishApplicationFileOpenRequest()
            } else {
                applicationFileOpenErrorPending = requested
                windowDialogs.documentFileErrorDialog.open()
            }
        }, documentFileController.opensSlowly(url))
    }

    function loadChosenFile(url) {
        busyCover.during(() => {
            if (!documentFileController.load(url)) {
                windowDialogs.documentFileErrorDialog.open()
                return
            }
            if (!documentFileController.hasDocumentUrl)
                applicationSettings.rememberImageImportFolder(url)
            fitLoadedDocumentToView()
        }, documentFileController.opensSlowly(url))
    }

    function loadRecentDocument(path) {
        busyCover.during(() => {
            if (documentFileController.load(applicationSettings.recentFileUrl(path))) {
                fitLoadedDocumentToView()
            } else {
                applicationSettings.removeRecentFile(path)
                windowDialogs.documentFileErrorDialog.open()
            }
        }, documentFileController.opensSlowly(applicationSettings.recentFileUrl(path)))
    }

    // --- Files that the system asks to open ---

    // Takes the oldest request, if nothing stands in the way. Whatever ends a request calls this again.
    function processPendingApplicationFileOpenRequest() {
        if (applicationFileOpenActive || pendingUnsavedAction !== noPendingUnsavedAction
                || exportController.sessionSaveBusy || applicationFileOpenUiBlocked || busyCover.running)
            return
        const url = applicationFileOpenRequests.takePendingFileOpenRequest()
        if (!url.toString())
            return
        if (visibility === Window.Hidden || visibility === Window.Minimized)
            showMaximized()     // show() would take the maximised state away
        window.raise()
        window.requestActivate()
        if (commandHistory.clean && url.toString() === documentFileController.documentUrl.toString()) {
            Qt.callLater(processPendingApplicationFileOpenRequest)     // it is open as it is
            return
        }
        applicationFileOpenActive = true
        activeApplicationFileOpenUrl = url
        requestOpenFile(url, true)
    }

    function finishApplicationFileOpenRequest() {
        applicationFileOpenActive = false
        applicationFileOpenErrorPending = false
        activeApplicationFileOpenUrl = ""
        Qt.callLater(processPendingApplicationFileOpenRequest)
    }

    // --- Saving ---

    // Carries out work that holds the thread, once a frame has told of it.
    function carryOut(work) {
        busyCover.during(work, true)
    }

    function finishSave(imageUrl) {
        windowDialogs.saveProgressDialog.close()
        if (pendingUnsavedAction !== noPendingUnsavedAction && commandHistory.clean) {
            continuePendingUnsavedAction()
            return
        }
        clearPendingUnsavedAction()
        showSaveSucceeded(imageUrl)
        Qt.callLater(processPendingApplicationFileOpenRequest)
    }

    function exportTo(url) {
        carryOut(() => {
            if (exportController.exportTo(url)) {
                applicationSettings.rememberExportFolder(url)
            } else {
                exportController.end()
                windowDialogs.exportErrorDialog.open()
                abandonPendingUnsavedAction()
            }
        })
    }

    function showSaveSucceeded(imageUrl) {
        const hint = Qt.platform.os === "osx" ? qsTr("Show in Finder") : qsTr("Show in Explorer")
        Toast.show(filled(qsTr("Image exported to %1.\nEditable document saved as %2."),
                          [documentFileController.displayPath(imageUrl),
                           documentFileController.displayFileName(documentFileController.documentUrl)]),
                   hint + "\u00a0›", { durationMs: 3500, clickHandler: () => revealImage(imageUrl) })
    }

    function revealImage(imageUrl) {
        if (!fileManager.reveal(imageUrl))
            Toast.show(qsTr("Could not open the folder containing the image."), Toast.failure)
    }

    // --- Layers from files ---

    function insertImage(url) {
        busyCover.during(() => {
            if (editorController.addImage(url))
                applicationSettings.rememberImageImportFolder(url)
            else
                windowDialogs.imageLoadErrorDialog.open()
            actionContext.activateSelectionMode()
        }, documentFileController.opensSlowly(url))
    }

    function handleDroppedFiles(urls) {
        if (applicationFileOpenActive || applicationFileOpenUiBlocked)
            return
        const document = urls.find(url => url.toString().toLowerCase().endsWith(".zelmora"))
        if (document !== undefined) {
            requestOpenFile(document, false)
            return
        }
        canvas.commitTextEditing()
        busyCover.during(() => {
            const failed = urls.findIndex(url => {
                const added = editorController.addImage(url)
                if (added)
                    applicationSettings.rememberImageImportFolder(url)
                return !added
            })
            if (failed >= 0)
                windowDialogs.imageLoadErrorDialog.open()
            if (failed !== 0 && urls.length > 0)
                actionContext.activateSelectionMode()
        }, urls.length > 1 || urls.some(url => documentFileController.opensSlowly(url)))
    }

    // --- View ---

    function fitLoadedDocumentToView() {
        Qt.callLater(window.fitDocument)
    }

    function fitDocument() {
        fitting = true
        viewFitted = canvas.fitDocumentRect(scenePresentationModel.documentRect)
        fitting = false
    }

    function forgetFit() {
        if (!fitting)
            viewFitted = false
    }

    function fitAgain() {
        if (viewFitted)
            Qt.callLater(fitDocument)
    }

    // For fields, which take the keys of undo and redo.
    function stepHistory(redo) {
        if (!applicationFileOpenUiBlocked)
            (redo ? windowActions.edit.redo : windowActions.edit.undo).trigger()
    }

    function toggleFullScreen() {
        if (fullScreen) {
            visibility = visibilityBeforeFullScreen
        } else {
            visibilityBeforeFullScreen = visibility
            showFullScreen()
        }
    }

    // Left means the first place in the split, and the tools beside it on the other end of the workspace.
    function applyInspectorPosition() {
        const wanted = applicationSettings.inspectorPosition === 0 ? 0 : 1
        for (let i = 0; i < workspaceSplitView.count; ++i) {
            if (workspaceSplitView.itemAt(i) === inspector && i !== wanted) {
                workspaceSplitView.moveItem(i, wanted)
                return
            }
        }
    }

    function chooseLanguage(language) {
        if (language !== applicationSettings.language)
            windowDialogs.languageRestartDialog.openAfterLanguageSwitch()
        applicationSettings.language = language
    }

    // Developers with three screens work on the third.
    function moveToThirdScreen() {
        const screens = Application.screens
        if (!debugBuild || screens.length < 3)
            return
        screen = screens[2]
        x = screen.virtualX + (screen.width - width) / 2
        y = screen.virtualY + (screen.height - height) / 2
    }

    width: 1280
    height: 800
    minimumWidth: 800
    minimumHeight: 520
    visible: false
    color: palette.window   // asked for here, so that the window has a palette to follow the theme and to hand on
    title: filled(qsTr("%1%2 - %3"), [documentFileController.displayName, commandHistory.clean ? "" : "*",
                                      Application.displayName])

    onApplicationFileOpenUiBlockedChanged: Qt.callLater(processPendingApplicationFileOpenRequest)

    // Controls made after a theme is applied would keep the style's palette, so it waits until all are there.
    Component.onCompleted: {
        applicationTheme.applyTheme()
        moveToThirdScreen()
        showMaximized()
        canvas.forceCanvasFocus()
        Qt.callLater(processPendingApplicationFileOpenRequest)
        Qt.callLater(applyInspectorPosition)
    }

    onClosing: close => {
        if (windowActions.file.saveInProgress) {
            close.accepted = false
            Toast.show(qsTr("Please wait for the current save to finish."), Toast.failure)
            return
        }
        if (!unsavedChangesWarningEnabled)
            return
        canvas.commitTextEditing()
        if (closeConfirmed || commandHistory.clean)
            return
        close.accepted = false
        requestUnsavedAction(closePendingUnsavedAction, unsavedQuestion.exitApplicationAction, "", "")
    }

    Connections {
        target: applicationFileOpenRequests

        function onPendingFileOpenRequestAvailable() {
            Qt.callLater(window.processPendingApplicationFileOpenRequest)
        }
    }

    Connections {
        target: applicationSettings

        function onInspectorPositionChanged() {
            Qt.callLater(window.applyInspectorPosition)
        }
    }

    Connections {
        target: exportController

        function onSaveSucceeded(imageUrl) {
            window.finishSave(imageUrl)
        }

        function onSessionSaveFailed() {
            windowDialogs.saveProgressDialog.close()
            windowDialogs.exportErrorDialog.open()
            window.abandonPendingUnsavedAction()
        }
    }

    Connections {
        target: editorController

        function onSceneObjectAdded(focusBounds, fitViewToBounds) {
            canvas.handleSceneObjectAdded(focusBounds, fitViewToBounds)
            if (!windowActions.tools.pathEdit.active)
                inspector.activateInfoTab()
        }
    }

    Binding {
        target: editorController
        property: "addLayerViewportRect"
        value: canvas.addLayerViewportRect
    }

    Binding {
        target: editorController
        property: "viewScale"
        value: canvas.zoom
    }

    ActionContext {
        id: actionContext

        window: window
        canvas: canvas
        dialogs: windowDialogs
        forDevelopers: debugBuild
        webSiteUrl: applicationInfoController.webSiteUrl
        settings: applicationSettings
        flags: runtimeFlags
        exporter: exportController
        history: commandHistory
        editor: editorController
        editorState: editorStateModel
        sceneAdapter: sceneObjectAdapter
    }

    WindowActions {
        id: windowActions

        context: actionContext
        file.onSaveFailed: window.abandonPendingUnsavedAction()
    }

    menuBar: MainMenuBar {
        context: actionContext
        actions: windowActions
    }

    header: MainToolBar {
        actions: windowActions
    }

    SplitView {
        id: workspaceSplitView

        anchors.fill: parent
        enabled: !windowDialogs.fileDialogOpen      // which may be a window beside this one
        handle: Item {
            implicitWidth: Theme.spaceXS
            // Wider than it looks, so that it can be taken hold of.
            containmentMask: Item {
                x: -Theme.spaceXS
                width: 3 * Theme.spaceXS
                height: workspaceSplitView.height
            }
        }

        ColumnLayout {
            SplitView.fillWidth: true
            SplitView.minimumWidth: 400
            spacing: 0

            RowLayout {
                layoutDirection: applicationSettings.inspectorPosition === 0 ? Qt.RightToLeft : Qt.LeftToRight
                spacing: 0

                ToolRail {
                    Layout.fillHeight: true
                    actions: windowActions
                    positionedOnRight: applicationSettings.inspectorPosition === 0
                }

                Canvas {
                    id: canvas

                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    sceneModel: scenePresentationModel
                    editorState: editorStateModel
                    fixedDocumentBounds: applicationSettings.canvasClipMode
                    documentBoundsVisible: applicationSettings.documentBoundsVisible
                    rulersVisible: applicationSettings.rulerPlacement !== 0
                    rulersAtBottomRight: applicationSettings.rulerPlacement === 2
                    cutAction: windowActions.edit.cut
                    copyAction: windowActions.edit.copy
                    pasteAction: windowActions.edit.paste
                    removeLayerAction: windowActions.layers.removeLayer
                    clearRasterSelectionAction: windowActions.selection.clearRaster
                    invertRasterSelectionAction: windowActions.selection.invertRaster
                    onFilesDropped: fileUrls => window.handleDroppedFiles(fileUrls)
                    onZoomChanged: window.forgetFit()
                    onBoardCenterChanged: window.forgetFit()
                    onWidthChanged: window.fitAgain()
                    onHeightChanged: window.fitAgain()
                    onRulersVisibleChanged: window.fitAgain()

                    BusyCover {
                        id: busyCover

                        anchors.fill: parent
                        onFinished: Qt.callLater(window.processPendingApplicationFileOpenRequest)
                    }
                }
            }

            StatusBar {
                Layout.fillWidth: true
                canvas: canvas
                actions: windowActions
                layerPixelSize: scenePresentationModel.selectedLayerPixelSize
            }
        }

        Inspector {
            id: inspector

            SplitView.preferredWidth: 300
            SplitView.minimumWidth: 240
            SplitView.maximumWidth: 440
            positionedOnLeft: applicationSettings.inspectorPosition === 0
            documentAdapter: documentPropertiesAdapter
            sceneObjectAdapter: actionContext.sceneAdapter
            layerPixelSize: scenePresentationModel.selectedLayerPixelSize
            showHideLayerAction: windowActions.layers.toggleVisibility
            cutLayerAction: windowActions.edit.cut
            copyLayerAction: windowActions.edit.copy
            pasteLayerAction: windowActions.edit.paste
            moveLayerUpAction: windowActions.layers.moveUp
            moveLayerDownAction: windowActions.layers.moveDown
            rasterizeLayerAction: windowActions.layers.rasterize
            mergeLayerBelowAction: windowActions.layers.collapseDown
            removeLayerAction: windowActions.layers.removeLayer
            onTypingFinished: canvas.forceCanvasFocus()
        }
    }

    WindowDialogs {
        id: windowDialogs

        files: documentFileController
        editor: editorController
        exporter: exportController
        settings: applicationSettings
        applicationInfo: applicationInfoController
        notices: noticeCatalogModel
        shapes: shapePickerModel
        onDocumentChosen: fileUrl => Qt.callLater(window.loadChosenFile, fileUrl)
        onImageChosen: fileUrl => Qt.callLater(window.insertImage, fileUrl)
        onExportFileChosen: fileUrl => window.exportTo(fileUrl)
        onExportCanceled: window.abandonPendingUnsavedAction()
        onOpenErrorRead: {
            if (window.applicationFileOpenErrorPending)
                window.finishApplicationFileOpenRequest()
        }
        onBoardReset: {
            window.fitLoadedDocumentToView()
            canvas.forceCanvasFocus()
        }
        onSaveRequested: windowActions.file.saveDocument.trigger()
        onContinueRequested: window.continuePendingUnsavedAction()
        onUnsavedQuestionDismissed: window.abandonPendingUnsavedAction()
    }
}
