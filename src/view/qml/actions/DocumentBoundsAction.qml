ModeAction {
    required property ApplicationSettings settings

    text: qsTr("Show Document &Bounds")
    active: settings.documentBoundsVisible
    onChosen: settings.documentBoundsVisible = !active
}
