import QtQuick
import QtQuick.Controls

// How the document is shown. Nothing here changes it; the modes are kept in the settings.
QtObject {
    id: root

    required property ActionContext context

    readonly property Action zoomIn: Action {
        text: qsTr("Zoom &In")
        shortcut: StandardKey.ZoomIn
        enabled: root.context.canvas.canZoomIn
        onTriggered: root.context.canvas.zoomIn()
    }

    // The plus key without Shift, where plus needs it.
    readonly property Shortcut zoomInUnshifted: Shortcut {
        sequence: "Ctrl+="
        enabled: root.zoomIn.enabled
        onActivated: root.zoomIn.trigger()
    }

    readonly property Action zoomOut: Action {
        text: qsTr("Zoom &Out")
        shortcut: StandardKey.ZoomOut
        enabled: root.context.canvas.canZoomOut
        onTriggered: root.context.canvas.zoomOut()
    }

    readonly property Action zoomToFit: Action {
        text: qsTr("Zoom to &Fit")
        shortcut: "Ctrl+0"
        onTriggered: root.context.window.fitDocument()
    }

    readonly property Action zoomToActualSize: Action {
        text: qsTr("&Actual Size")
        shortcut: "Ctrl+1"
        onTriggered: root.context.canvas.setZoom(1.0)
    }

    readonly property Action fullScreen: Action {
        text: qsTr("F&ull Screen")
        shortcut: "F11"
        checkable: true
        checked: root.context.window.fullScreen
        onTriggered: root.context.window.toggleFullScreen()
    }

    readonly property ActionGroup canvasModes: ActionGroup {}

    readonly property Action unlimitedCanvas: Action {
        text: qsTr("Unlimited &Canvas Mode")
        checkable: true
        checked: !root.context.settings.canvasClipMode
        onTriggered: root.context.settings.canvasClipMode = false
        ActionGroup.group: root.canvasModes
    }

    readonly property CanvasClipModeAction canvasClipMode: CanvasClipModeAction {
        settings: root.context.settings
        ActionGroup.group: root.canvasModes
    }

    readonly property DocumentBoundsAction documentBounds: DocumentBoundsAction {
        settings: root.context.settings
    }

    readonly property ActionGroup themes: ActionGroup {}

    readonly property ThemeAction themeSystem: ThemeAction {
        text: qsTr("&System")
        settings: root.context.settings
        mode: "system"
        ActionGroup.group: root.themes
    }

    readonly property ThemeAction themeLight: ThemeAction {
        text: qsTr("&Light")
        settings: root.context.settings
        mode: "light"
        ActionGroup.group: root.themes
    }

    readonly property ThemeAction themeDark: ThemeAction {
        text: qsTr("&Dark")
        settings: root.context.settings
        mode: "dark"
        ActionGroup.group: root.themes
    }

    component ThemeAction: Action {
        required property var settings
        required property string mode

        checkable: true
        checked: settings.themeMode === mode
        onTriggered: settings.themeMode = mode
    }
}
