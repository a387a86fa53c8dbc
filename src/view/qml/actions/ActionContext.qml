import QtQuick
import QtQuick.Controls
import ZelmoraAtelier // after QtQuick, which has a Canvas too

// What the action objects work on. Declared once by the window and handed to each of them.
QtObject {
    id: root

    required property ApplicationWindow window
    required property Canvas canvas
    required property WindowDialogs dialogs
    required property bool forDevelopers
    required property url webSiteUrl
    required property var settings
    required property var flags
    required property var exporter
    required property var history
    required property var editor
    required property var editorState
    required property var sceneAdapter
    // Null while the program has no such tool; its actions are then disabled.
    property var clipboard: null
    property var paintController: null
    property var selectionModel: null
    property var shapeAdapter: null

    readonly property bool fixedDocumentBounds: settings.canvasClipMode
    readonly property bool textEditing: editorState.textEditActive
    // Nothing else has the keys: the document can be changed.
    readonly property bool editable: !textEditing && !dialogs.fileDialogOpen

    function commitTextEditing() {
        canvas.commitTextEditing()
    }

    function activateSelectionMode() {
        editorState.activateTransformMode()
    }

    // Toasts why `controller` could not do what it was asked for.
    function report(done, controller) {
        if (!done)
            Toast.show(controller.lastError, Toast.failure)
        return done
    }
}
