ModeAction {
    required property var settings

    text: qsTr("&Limit Canvas to Document Bounds")
    active: settings.canvasClipMode
    onChosen: settings.canvasClipMode = !active
}
