import QtQuick
import QtQuick.Dialogs

// The dialogs of the window. What a person decides in them goes to the window as a signal.
Item {
    id: root

    required property var files
    required property var editor
    required property var exporter
    required property var settings
    required property var applicationInfo
    required property var notices
    required property var shapes

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

    // They may be windows of their own, which let the keys of actions through.
    readonly property bool fileDialogOpen: documentOpenDialog.visible || imageFileDialog.visible
                                           || exportFileDialog.visible
    readonly property bool anyVisible: aboutDialog.visible || shapePickerDialog.visible || exportDialog.visible
                                       || saveProgressDialog.visible || resetBoardDialog.visible
                                       || fileDialogOpen || exportErrorDialog.visible
                                       || documentFileErrorDialog.visible || imageLoadErrorDialog.visible
                                       || unsavedChangesDialog.visible || languageRestartDialog.visible

    signal documentChosen(url fileUrl)
    signal imageChosen(url fileUrl)
    signal exportFileChosen(url fileUrl)
    // The export was given up, in its dialog or in the file dialog after it.
    signal exportCanceled()
    signal openErrorRead()
    signal boardReset()
    signal saveRequested()
    signal continueRequested()
    signal unsavedQuestionDismissed()

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

    FileDialog {
        id: documentOpenDialog

        title: qsTr("Open Document or Image")
        nameFilters: [
            qsTr("All supported files (%1 *.zelmora)").arg(root.editor.supportedImageFilePatterns),
            qsTr("All image files (%1)").arg(root.editor.supportedImageFilePatterns),
            qsTr("Zelmora documents (*.zelmora)"),
            qsTr("All files (*)")
        ]
        currentFolder: root.settings.imageImportFolderUrl
        onAccepted: root.documentChosen(selectedFile)
    }

    FileDialog {
        id: imageFileDialog

        title: qsTr("Insert Image Layer")
        nameFilters: [
            qsTr("All image files (%1)").arg(root.editor.supportedImageFilePatterns),
            qsTr("All files (*)")
        ]
        onAccepted: root.imageChosen(selectedFile)
    }

    FileDialog {
        id: exportFileDialog

        title: qsTr("Save Image As")
        acceptLabel: qsTr("Save")
        fileMode: FileDialog.SaveFile
        nameFilters: [root.exporter.fileNameFilter]
        defaultSuffix: root.exporter.defaultSuffix
        onAccepted: root.exportFileChosen(selectedFile)
        onRejected: {
            root.exporter.end()
            root.exportCanceled()
        }
    }

    ImageLoadErrorDialog {
        id: documentFileErrorDialog

        title: qsTr("Unable to Open File")
        message: root.files.lastError
        showHeifInstallHelp: root.files.lastErrorOffersHeifInstallHelp
        onClosed: root.openErrorRead()
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

        onSaveRequested: root.saveRequested()
        onContinueRequested: root.continueRequested()
        onDismissed: root.unsavedQuestionDismissed()
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
            onSaveSetupCanceled: root.exportCanceled()
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
