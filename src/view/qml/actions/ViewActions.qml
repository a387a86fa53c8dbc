pragma ComponentBehavior: Bound

import QtQuick

// How the document is shown. Nothing here changes it; the modes are kept in the settings.
QtObject {
    id: root

    required property ActionContext context
    property int visibilityBeforeFullScreen: Window.Maximized

    function toggleFullScreen() {
        const window = context.window
        if (fullScreen.active) {
            window.visibility = visibilityBeforeFullScreen
        } else {
            visibilityBeforeFullScreen = window.visibility
            window.showFullScreen()
        }
    }

    // The question is put in the old language and in the new one.
    function chooseLanguage(language: string) {
        if (language !== context.settings.language)
            context.dialogs.languageRestartDialog.openAfterLanguageSwitch()
        context.settings.language = language
    }

    readonly property ZmAction zoomIn: ZmAction {
        text: qsTr("Zoom &In")
        toolTip: qsTr("Zoom in")
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

    readonly property ZmAction zoomOut: ZmAction {
        text: qsTr("Zoom &Out")
        toolTip: qsTr("Zoom out")
        shortcut: StandardKey.ZoomOut
        enabled: root.context.canvas.canZoomOut
        onTriggered: root.context.canvas.zoomOut()
    }

    readonly property ZmAction zoomToFit: ZmAction {
        text: qsTr("Zoom to &Fit")
        shortcut: "Ctrl+0"
        onTriggered: root.context.canvas.fitDocument()
    }

    readonly property ZmAction zoomToActualSize: ZmAction {
        text: qsTr("&Actual Size")
        toolTip: qsTr("Reset zoom to 100%")
        shortcut: "Ctrl+1"
        onTriggered: root.context.canvas.setZoom(1.0)
    }

    readonly property ModeAction fullScreen: ModeAction {
        text: qsTr("F&ull Screen")
        shortcut: "F11"
        active: root.context.window.visibility === Window.FullScreen
        onChosen: root.toggleFullScreen()
    }

    readonly property ModeAction unlimitedCanvas: ModeAction {
        text: qsTr("Unlimited &Canvas Mode")
        active: !root.context.settings.canvasClipMode
        onChosen: root.context.settings.canvasClipMode = false
    }

    readonly property CanvasClipModeAction canvasClipMode: CanvasClipModeAction {
        settings: root.context.settings
    }

    readonly property DocumentBoundsAction documentBounds: DocumentBoundsAction {
        settings: root.context.settings
    }

    component RulerAction: ModeAction {
        property int placement

        active: root.context.settings.rulerPlacement === placement
        onChosen: root.context.settings.rulerPlacement = placement
    }

    readonly property RulerAction rulerOff: RulerAction {
        text: qsTr("&Off")
        placement: 0
    }

    readonly property RulerAction rulerTopLeft: RulerAction {
        text: qsTr("&Top and Left")
        placement: 1
    }

    readonly property RulerAction rulerBottomRight: RulerAction {
        text: qsTr("&Bottom and Right")
        placement: 2
    }

    component InspectorAction: ModeAction {
        property int position

        active: root.context.settings.inspectorPosition === position
        onChosen: root.context.settings.inspectorPosition = position
    }

    readonly property InspectorAction inspectorLeft: InspectorAction {
        text: qsTr("&Left")
        position: 0
    }

    readonly property InspectorAction inspectorRight: InspectorAction {
        text: qsTr("&Right")
        position: 1
    }

    component ThemeAction: ModeAction {
        property string mode

        active: root.context.settings.themeMode === mode
        onChosen: root.context.settings.themeMode = mode
    }

    readonly property ThemeAction themeSystem: ThemeAction {
        text: qsTr("&System")
        mode: "system"
    }

    readonly property ThemeAction themeLight: ThemeAction {
        text: qsTr("&Light")
        mode: "light"
    }

    readonly property ThemeAction themeDark: ThemeAction {
        text: qsTr("&Dark")
        mode: "dark"
    }
}
