pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Dialogs

// The dialogs of the window. The flow of documents opens them, and what a person decides in them goes back to it.
Item {
    id: root

    required property DocumentFlow flow
    required property DocumentFileController files
    required property EditorController editor
    required property ExportController exporter
    required property ApplicationSettings settings
    required property ApplicationInfoController applicationInfo
    required property NoticeCatalogModel notices
    required property ShapePickerModel shapes

    readonly property alias documentOpenDialog: documentOpenDialog
    readonly property alias imageFileDialog: imageFileDialog
    readonly property alias exportFileDialog: exportFileDialog
    readonly property alias documentFileErrorDialog: documentFileErrorDialog
    readonly property alias imageLoadErrorDialog: imageLoadErrorDialog
    readonly property alias exportErrorDialog: exportErrorDialog
    readonly property alias saveProgressDialog: saveProgressDialog
    readonly property alias unsavedChangesDialog: unsavedChangesDialog
    readonly property alias resetBoardDialog: resetBoardDialog
    readonly property alias languageRestartDialog: languageRestartDialog
    readonly property alias aboutDialog: aboutDialog
    readonly property alias exportDialog: exportDialog
    readonly property alias shapePickerDialog: shapePickerDialog

    signal boardReset()

    function openImageFileDialog() {
        if (settings.imageImportFolderUrl.toString())
            imageFileDialog.currentFolder = settings.imageImportFolderUrl
        imageFileDialog.open()
    }

    function openExportFileDialog() {
        const file = settings.exportFileUrl(exporter.suggestedFileUrl)
        exportFileDialog.currentFolder = settings.folderUrlForFileUrl(file)
        exportFileDialog.selectedFile = file
        exportFileDialog.open()
    }

    function previewHeifHelp() {
        imageLoadErrorDialog.previewsHelp = true
        imageLoadErrorDialog.open()
    }

    function previewSaveProgress() {
        saveProgressDialog.open()
        progressPreview.start()
    }

    Connections {
        target: root.flow

        function onUnsavedQuestionRequested(question) {
            unsavedChangesDialog.showForAction(question)
        }

        function onNewDocumentDialogRequested() {
            resetBoardDialog.open()
        }

        function onOpenDialogRequested() {
            documentOpenDialog.open()
        }

        function onExportDialogRequested() {
            exportDialog.open()
        }

        function onSaveProgressShownChanged() {
            if (root.flow.saveProgressShown)
                saveProgressDialog.open()
            else
                saveProgressDialog.close()
        }

        function onOpenFailed() {
            documentFileErrorDialog.open()
        }

        function onInsertFailed() {
            imageLoadErrorDialog.open()
        }

        function onSaveFailed() {
            exportErrorDialog.open()
        }
    }

    ZmFileDialog {
        id: documentOpenDialog

        title: qsTr("Open Document or Image")
        nameFilters: [
            qsTr("All supported files (%1 *.zelmora)").arg(root.editor.supportedImageFilePatterns),
            qsTr("All image files (%1)").arg(root.editor.supportedImageFilePatterns),
            qsTr("Zelmora documents (*.zelmora)"),
            qsTr("All files (*)")
        ]
        currentFolder: root.settings.imageImportFolderUrl
        onAccepted: Qt.callLater(root.flow.loadChosenFile, selectedFile)
    }

    ZmFileDialog {
        id: imageFileDialog

        title: qsTr("Insert Image Layer")
        nameFilters: [
            qsTr("All image files (%1)").arg(root.editor.supportedImageFilePatterns),
            qsTr("All files (*)")
        ]
        onAccepted: Qt.callLater(root.flow.insertImage, selectedFile)
    }

    ZmFileDialog {
        id: exportFileDialog

        title: qsTr("Save Image As")
        acceptLabel: qsTr("Save")
        fileMode: FileDialog.SaveFile
        nameFilters: [root.exporter.fileNameFilter]
        defaultSuffix: root.exporter.defaultSuffix
        onAccepted: root.flow.exportTo(selectedFile)
        onRejected: root.flow.cancelExport()
    }

    ImageLoadErrorDialog {
        id: documentFileErrorDialog

        title: qsTr("Unable to Open File")
        message: root.files.lastError
        showHeifInstallHelp: root.files.lastErrorOffersHeifInstallHelp
        onClosed: root.flow.openErrorRead()
    }

    ImageLoadErrorDialog {
        id: imageLoadErrorDialog

        property bool previewsHelp: false       // for developers

        title: qsTr("Unable to Insert Image")
        message: root.editor.lastError
        showHeifInstallHelp: previewsHelp || root.editor.lastErrorOffersHeifInstallHelp
        onClosed: previewsHelp = false
    }

    ImageLoadErrorDialog {
        id: exportErrorDialog

        title: qsTr("Unable to Save Image")
        message: root.exporter.errorString
    }

    ZmProgressDialog {
        id: saveProgressDialog

        text: qsTr("Saving…")
    }

    Timer {
        id: progressPreview

        interval: 3000
        onTriggered: saveProgressDialog.close()
    }

    UnsavedChangesDialog {
        id: unsavedChangesDialog

        onSaveRequested: root.flow.saveDocument(root.settings.canvasClipMode)
        onContinueRequested: root.flow.continuePendingUnsavedAction()
        onDismissed: root.flow.abandonPendingUnsavedAction()
    }

    NewDocumentDialog {
        id: resetBoardDialog

        documentFileController: root.files
        onBoardReset: root.boardReset()
    }

    LanguageRestartDialog {
        id: languageRestartDialog
    }

    LazyDialog {
        id: aboutDialog

        host: root
        component: AboutDialog {
            applicationInfoController: root.applicationInfo
            noticeCatalogModel: root.notices
            webSite: root.applicationInfo.webSiteUrl
        }
    }

    LazyDialog {
        id: exportDialog

        host: root
        component: ExportDialog {
            controller: root.exporter
            onSaveRequested: root.openExportFileDialog()
            onSaveSetupCanceled: root.flow.cancelExport()
        }
    }

    LazyDialog {
        id: shapePickerDialog

        host: root
        component: ShapePickerDialog {
            shapeModel: root.shapes
            controller: root.editor
        }
    }
}
