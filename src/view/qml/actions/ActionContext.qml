import QtQuick
import QtQuick.Controls
import ZelmoraAtelier // after QtQuick, which has a Canvas too

// What the action objects work on. Declared once by the window and handed to each of them.
QtObject {
    id: root

    required property ApplicationWindow window
    required property Canvas canvas
    required property WindowDialogs dialogs
    required property DocumentFlow flow
    required property bool forDevelopers
    required property url webSiteUrl
    required property ApplicationSettings settings
    required property RuntimeFlags flags
    required property CommandHistory history
    required property EditorController editor
    required property EditorStateModel editorState
    required property SceneObjectAdapter sceneAdapter
    // Tools that the program does not have yet, and so no types either. While one is null its actions are disabled.
    property var clipboard: null
    property var paintController: null
    property var selectionModel: null
    property var shapeAdapter: null

    readonly property bool fixedDocumentBounds: settings.canvasClipMode
    readonly property bool textEditing: editorState.textEditActive
    // Nothing else has the keys: the document can be changed.
    readonly property bool editable: !textEditing && !OpenDialogs.anyFileDialog

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
