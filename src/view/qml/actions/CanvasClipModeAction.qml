ModeAction {
    required property ApplicationSettings settings

    text: qsTr("&Limit Canvas to Document Bounds")
    active: settings.canvasClipMode
    onChosen: settings.canvasClipMode = !active
}
