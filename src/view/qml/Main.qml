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

    readonly property bool fullScreen: visibility === Window.FullScreen
    property int visibilityBeforeFullScreen: Window.Maximized

    function requestOpenDocument() {
        documentOpenDialog.open()
    }

    function requestOpenFile(url, applicationRequest) {
        if (applicationFileOpenActive && !applicationRequest)
            return
        Qt.callLater(loadDocumentFile, url)
    }

    function loadDocumentFile(url) {
        const requested = applicationFileOpenActive && url.toString() === activeApplicationFileOpenUrl.toString()
        if (documentFileController.load(url)) {
            fitLoadedDocumentToView()
            if (requested)
                finishApplicationFileOpenRequest()
            return
        }
        applicationFileOpenErrorPending = requested
        documentFileErrorDialog.open()
    }

    function fitLoadedDocumentToView() {
        Qt.callLater(window.fitDocument)
    }

    function fitDocument() {
        canvas.fitDocumentRect(scenePresentationModel.documentRect)
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
        if (!applicationFileOpenActive && urls.length > 0)
            requestOpenFile(urls[0], false)
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
    title: qsTr("%1%2 - %3").arg(documentFileController.displayName).arg(commandHistory.clean ? "" : "*")
                            .arg(Application.displayName)

    onApplicationFileOpenUiBlockedChanged: Qt.callLater(processPendingApplicationFileOpenRequest)

    // Controls made before the window keep the style's palette, so the theme is applied once more.
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

    // A window has its real size only with its first frame, which a file named at the start does not wait for.
    Connections {
        id: firstFrame

        target: window

        function onFrameSwapped() {
            firstFrame.enabled = false
            if (scenePresentationModel.hasSelection)
                window.fitDocument()
        }
    }

    ActionContext {
        id: actionContext

        window: window
        canvas: canvas
        scene: scenePresentationModel
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
        }

        StatusBar {
            Layout.fillWidth: true
            canvas: canvas
            layerPixelSize: scenePresentationModel.selectedLayerPixelSize
        }
    }

    FileDialog {
        id: documentOpenDialog

        title: qsTr("Open Image")
        nameFilters: [
            qsTr("All image files (%1)").arg(documentFileController.supportedImageFilePatterns),
            qsTr("All files (*)")
        ]
        currentFolder: applicationSettings.imageImportFolderUrl
        onAccepted: {
            applicationSettings.rememberImageImportFolder(selectedFile)
            window.requestOpenFile(selectedFile, false)
        }
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
