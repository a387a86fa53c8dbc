pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import ZelmoraAtelier // after QtQuick, which has a Canvas too

// The window: menus, bars, canvas and inspector, put together, and what is to be seen of the flow of documents.
DocumentWindow {
    id: window

    required property bool debugBuild
    required property RuntimeFlags runtimeFlags
    required property ApplicationInfoController applicationInfoController
    required property ApplicationSettings applicationSettings
    required property ApplicationThemeController applicationTheme
    required property CommandHistory commandHistory
    required property SceneObjectAdapter sceneObjectAdapter
    required property ScenePresentationModel scenePresentationModel
    required property EditorStateModel editorStateModel
    required property DocumentPropertiesAdapter documentPropertiesAdapter
    required property ShapePickerModel shapePickerModel
    required property NoticeCatalogModel noticeCatalogModel
    required property EditorController editorController
    required property FileManagerController fileManager
    required property DocumentFileController documentFileController
    required property ExportController exportController
    required property UserNotificationCenter userNotifications

    function fitLoadedDocumentToView() {
        Qt.callLater(canvas.fitDocument)
    }

    function showSaveSucceeded(imageUrl: url) {
        const hint = Qt.platform.os === "osx" ? qsTr("Show in Finder") : qsTr("Show in Explorer")
        Toast.show(filled(qsTr("Image exported to %1.\nEditable document saved as %2."),
                          [documentFileController.displayPath(imageUrl),
                           documentFileController.displayFileName(documentFileController.documentUrl)]),
                   hint + "\u00a0›", { durationMs: 3500, clickHandler: () => revealImage(imageUrl) })
    }

    function revealImage(imageUrl: url) {
        if (!fileManager.reveal(imageUrl))
            Toast.show(qsTr("Could not open the folder containing the image."), Toast.failure)
    }

    // For fields, which take the keys of undo and redo.
    function stepHistory(redo) {
        if (!applicationFileOpenUiBlocked)
            (redo ? windowActions.edit.redo : windowActions.edit.undo).trigger()
    }

    // In one go: a file name may itself hold what looks like a place marker.
    function filled(pattern: string, words: list<string>): string {
        return pattern.replace(/%([1-9])/g, (marker, number) => words[number - 1])
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

    // Developers with three screens work on the third.
    function moveToThirdScreen() {
        const screens = Application.screens
        if (!debugBuild || screens.length < 3)
            return
        const third = screens[2]
        screen = third
        x = third.virtualX + (third.width - width) / 2
        y = third.virtualY + (third.height - height) / 2
    }

    width: 1280
    height: 800
    minimumWidth: 800
    minimumHeight: 520
    visible: false
    color: palette.window   // asked for here, so that the window has a palette to follow the theme and to hand on
    title: filled(qsTr("%1%2 - %3"), [documentFileController.displayName, commandHistory.clean ? "" : "*",
                                      Application.displayName])

    // Controls made after a theme is applied would keep the style's palette, so it waits until all are there.
    Component.onCompleted: {
        applicationTheme.applyTheme()
        moveToThirdScreen()
        showMaximized()
        canvas.forceCanvasFocus()
        documentFlow.processFileOpenRequestsLater()
        Qt.callLater(applyInspectorPosition)
    }

    Connections {
        target: window.documentFlow

        function onDocumentOpened() {
            window.fitLoadedDocumentToView()
        }

        function onSaved(imageUrl) {
            window.showSaveSucceeded(imageUrl)
        }

        function onCloseRefusedWhileSaving() {
            Toast.show(qsTr("Please wait for the current save to finish."), Toast.failure)
        }
    }

    Connections {
        target: window.applicationSettings

        function onInspectorPositionChanged() {
            Qt.callLater(window.applyInspectorPosition)
        }
    }

    Connections {
        target: window.editorController

        function onSceneObjectAdded(focusBounds, fitViewToBounds) {
            canvas.handleSceneObjectAdded(focusBounds, fitViewToBounds)
            if (!windowActions.tools.pathEdit.active)
                inspector.activateInfoTab()
        }
    }

    Connections {
        target: window.userNotifications

        function onToastRequested(message, hint, delayMs, durationMs, persistent) {
            Toast.show(message, { hint, delayMs, durationMs, persistent })
        }
    }

    Binding {
        target: window.editorController
        property: "addLayerViewportRect"
        value: canvas.addLayerViewportRect
    }

    Binding {
        target: window.editorController
        property: "viewScale"
        value: canvas.zoom
    }

    ActionContext {
        id: actionContext

        window: window
        canvas: canvas
        dialogs: windowDialogs
        flow: window.documentFlow
        forDevelopers: window.debugBuild
        webSiteUrl: window.applicationInfoController.webSiteUrl
        settings: window.applicationSettings
        flags: window.runtimeFlags
        history: window.commandHistory
        editor: window.editorController
        editorState: window.editorStateModel
        sceneAdapter: window.sceneObjectAdapter
    }

    WindowActions {
        id: windowActions

        context: actionContext
    }

    menuBar: MainMenuBar {
        actions: windowActions
    }

    header: MainToolBar {
        actions: windowActions
    }

    SplitView {
        id: workspaceSplitView

        anchors.fill: parent
        enabled: !OpenDialogs.anyFileDialog     // which may be a window beside this one
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
                layoutDirection: window.applicationSettings.inspectorPosition === 0 ? Qt.RightToLeft : Qt.LeftToRight
                spacing: 0

                ToolRail {
                    Layout.fillHeight: true
                    actions: windowActions
                    positionedOnRight: window.applicationSettings.inspectorPosition === 0
                }

                Canvas {
                    id: canvas

                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    sceneModel: window.scenePresentationModel
                    editorState: window.editorStateModel
                    fixedDocumentBounds: window.applicationSettings.canvasClipMode
                    documentBoundsVisible: window.applicationSettings.documentBoundsVisible
                    rulersVisible: window.applicationSettings.rulerPlacement !== 0
                    rulersAtBottomRight: window.applicationSettings.rulerPlacement === 2
                    contextMenu: CanvasContextMenu {
                        actions: windowActions
                        documentPoint: canvas.contextDocumentPoint
                    }
                    onFilesDropped: fileUrls => window.documentFlow.handleDroppedFiles(fileUrls)

                    BusyCover {
                        anchors.fill: parent
                        work: window.documentFlow.work
                    }
                }
            }

            StatusBar {
                Layout.fillWidth: true
                canvas: canvas
                actions: windowActions
                layerPixelSize: window.scenePresentationModel.selectedLayerPixelSize
            }
        }

        Inspector {
            id: inspector

            SplitView.preferredWidth: 300
            SplitView.minimumWidth: 240
            SplitView.maximumWidth: 440
            positionedOnLeft: window.applicationSettings.inspectorPosition === 0
            documentAdapter: window.documentPropertiesAdapter
            sceneObjectAdapter: window.sceneObjectAdapter
            layerPixelSize: window.scenePresentationModel.selectedLayerPixelSize
            actions: windowActions
            onTypingFinished: canvas.forceCanvasFocus()
        }
    }

    WindowDialogs {
        id: windowDialogs

        flow: window.documentFlow
        files: window.documentFileController
        editor: window.editorController
        exporter: window.exportController
        settings: window.applicationSettings
        applicationInfo: window.applicationInfoController
        notices: window.noticeCatalogModel
        shapes: window.shapePickerModel
        onBoardReset: {
            window.fitLoadedDocumentToView()
            canvas.forceCanvasFocus()
        }
    }
}
