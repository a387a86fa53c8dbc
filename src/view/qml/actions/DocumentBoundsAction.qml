ModeAction {
    required property var settings

    text: qsTr("Show Document &Bounds")
    active: settings.documentBoundsVisible
    onChosen: settings.documentBoundsVisible = !active
}
