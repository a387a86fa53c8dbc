import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import QtQuick.Dialogs
import ZelmoraAtelier // after QtQuick, which has a Canvas too

// The window: menus, the canvas, the status bar, and the way of a file from a request to the canvas.
ApplicationWindow {
    id: window

    // A file named by the command line or the system that is being opened.
    property bool applicationFileOpenActive: false
    property bool applicationFileOpenErrorPending: false
    property url activeApplicationFileOpenUrl
    readonly property bool applicationFileOpenUiBlocked: documentOpenDialog.visible || documentFileErrorDialog.visible

    // The whole document is in view and stays so while the window changes its size, until the view is moved.
    property bool viewFitted: false
    property bool fitting: false

    readonly property bool fullScreen: visibility === Window.FullScreen
    property int visibilityBeforeFullScreen: Window.Maximized

    // In one go: a file name may itself hold what looks like a place marker.
    function filled(pattern, words) {
        return pattern.replace(/%([1-9])/g, (marker, number) => words[number - 1])
    }

    function requestOpenDocument() {
        documentOpenDialog.open()
    }

    function requestOpenFile(url, applicationRequest) {
        if (applicationFileOpenActive && !applicationRequest)
            return
        Qt.callLater(loadDocumentFile, url)
    }

    // For the next file dialog, which begins where the last picture was found.
    function loadChosenFile(url) {
        if (loadDocumentFile(url) && !documentFileController.hasDocumentUrl)
            applicationSettings.rememberImageImportFolder(url)
    }

    function loadDocumentFile(url) {
        const requested = applicationFileOpenActive && url.toString() === activeApplicationFileOpenUrl.toString()
        if (documentFileController.load(url)) {
            fitLoadedDocumentToView()
            if (requested)
                finishApplicationFileOpenRequest()
            return true
        }
        applicationFileOpenErrorPending = requested
        documentFileErrorDialog.open()
        return false
    }

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

    // Takes the oldest request, if nothing stands in the way. Whatever ends a request calls this again.
    function processPendingApplicationFileOpenRequest() {
        if (applicationFileOpenActive || applicationFileOpenUiBlocked)
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

    function handleDroppedFiles(urls) {
        if (applicationFileOpenActive || applicationFileOpenUiBlocked || urls.length === 0)
            return
        const document = urls.find(url => url.toString().toLowerCase().endsWith(".zelmora"))
        requestOpenFile(document ?? urls[0], false)
    }

    function toggleFullScreen() {
        if (fullScreen) {
            visibility = visibilityBeforeFullScreen
        } else {
            visibilityBeforeFullScreen = visibility
            showFullScreen()
        }
    }

    width: 1280
    height: 800
    minimumWidth: 800
    minimumHeight: 520
    visible: false
    title: filled(qsTr("%1%2 - %3"), [documentFileController.displayName, commandHistory.clean ? "" : "*",
                                      Application.displayName])

    onApplicationFileOpenUiBlockedChanged: Qt.callLater(processPendingApplicationFileOpenRequest)

    // Controls made after a theme is applied would keep the style's palette, so it waits until all are there.
    Component.onCompleted: {
        applicationTheme.applyTheme()
        showMaximized()
        canvas.forceCanvasFocus()
        Qt.callLater(processPendingApplicationFileOpenRequest)
    }

    Connections {
        target: applicationFileOpenRequests

        function onPendingFileOpenRequestAvailable() {
            Qt.callLater(window.processPendingApplicationFileOpenRequest)
        }
    }

    ActionContext {
        id: actionContext

        window: window
        canvas: canvas
        settings: applicationSettings
    }

    FileActions {
        id: fileActions

        context: actionContext
    }

    ViewActions {
        id: viewActions

        context: actionContext
    }

    menuBar: ZmMenuBar {
        ZmMenu {
            title: qsTr("&File")

            ZmMenuItem { action: fileActions.openDocument }
            ZmMenuSeparator {}
            ZmMenuItem { action: fileActions.quitApplication }
        }

        ZmMenu {
            title: qsTr("&View")

            ZmMenuItem { action: viewActions.zoomIn }
            ZmMenuItem { action: viewActions.zoomOut }
            ZmMenuItem { action: viewActions.zoomToFit }
            ZmMenuItem { action: viewActions.zoomToActualSize }
            ZmMenuSeparator {}
            ZmMenuItem { action: viewActions.unlimitedCanvas }
            ZmMenuItem { action: viewActions.canvasClipMode }
            ZmMenuSeparator {}
            ZmMenuItem { action: viewActions.documentBounds }
            ZmMenuSeparator {}

            ZmMenu {
                title: qsTr("&Theme")

                ZmMenuItem { action: viewActions.themeSystem }
                ZmMenuItem { action: viewActions.themeLight }
                ZmMenuItem { action: viewActions.themeDark }
            }

            ZmMenuSeparator {}
            ZmMenuItem { action: viewActions.fullScreen }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        Canvas {
            id: canvas

            Layout.fillWidth: true
            Layout.fillHeight: true
            sceneModel: scenePresentationModel
            fixedDocumentBounds: applicationSettings.canvasClipMode
            documentBoundsVisible: applicationSettings.documentBoundsVisible
            onFilesDropped: fileUrls => window.handleDroppedFiles(fileUrls)
            onZoomChanged: window.forgetFit()
            onBoardCenterChanged: window.forgetFit()
            onWidthChanged: window.fitAgain()
            onHeightChanged: window.fitAgain()
        }

        StatusBar {
            Layout.fillWidth: true
            canvas: canvas
            layerPixelSize: scenePresentationModel.selectedLayerPixelSize
        }
    }

    FileDialog {
        id: documentOpenDialog

        title: qsTr("Open Document or Image")
        nameFilters: [
            qsTr("All supported files (%1 *.zelmora)").arg(documentFileController.supportedImageFilePatterns),
            qsTr("All image files (%1)").arg(documentFileController.supportedImageFilePatterns),
            qsTr("Zelmora documents (*.zelmora)"),
            qsTr("All files (*)")
        ]
        currentFolder: applicationSettings.imageImportFolderUrl
        onAccepted: Qt.callLater(window.loadChosenFile, selectedFile)
    }

    ImageLoadErrorDialog {
        id: documentFileErrorDialog

        title: qsTr("Unable to Open File")
        message: documentFileController.lastError
        onClosed: {
            if (window.applicationFileOpenErrorPending)
                window.finishApplicationFileOpenRequest()
        }
    }
}
