import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import ZelmoraAtelier

// A swatch that opens a dialog to choose another colour. Shows `currentColor` and asks for others by `colorChanged`: in
// a stream while the dialog is open, once with DialogAccepted at its end, or once with DialogRejected and the colour
// that it began with.
AbstractButton {
    id: root

    property color currentColor: "white"
    property string dialogTitle: qsTr("Choose Color")
    property bool showAlphaChannel: true
    property int checkerSize: 6
    property bool livePreviewEnabled: true
    property int livePreviewInterval: 80        // ms between two previews at least

    property color dialogInitialColor
    property color lastReportedColor
    property color pendingColor
    property ColorDialog dialog: null
    readonly property bool dialogOpen: dialog?.visible ?? false

    signal colorChanged(color color, int reason)

    function openDialog() {
        if (dialogOpen)
            return
        if (!dialog)
            dialog = dialogComponent.createObject(root)
        dialogInitialColor = currentColor
        lastReportedColor = currentColor
        dialog.selectedColor = currentColor
        dialog.open()
    }

    // The owner follows previews by setting currentColor, so that is nothing to compare with.
    function previewColor(color) {
        if (!dialogOpen || !livePreviewEnabled)
            return
        pendingColor = color
        if (!previewTimer.running)
            previewTimer.start()
    }

    function flushPreview() {
        if (sameColor(pendingColor, lastReportedColor))
            return
        lastReportedColor = pendingColor
        colorChanged(pendingColor, ColorChange.DialogSelection)
    }

    function finish(color, reason) {
        previewTimer.stop()
        colorChanged(color, reason)
    }

    function sameColor(a, b) {
        return a.r === b.r && a.g === b.g && a.b === b.b && a.a === b.a
    }

    implicitWidth: 52
    implicitHeight: Theme.controlHeight
    padding: Theme.spaceS
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : Theme.disabledOpacity
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: text || dialogTitle
    Accessible.description: currentColor.toString()
    onClicked: openDialog()

    contentItem: Item {
        Checkerboard {
            anchors.fill: parent
            cell: root.checkerSize
            visible: root.currentColor.a < 1
        }

        Rectangle {
            anchors.fill: parent
            color: root.currentColor
            border.color: Qt.alpha(Theme.text, 0.3)
        }
    }

    background: Rectangle {
        radius: Theme.radius
        color: Theme.raised
        border.color: Theme.outline

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: root.down ? Theme.pressedFill : root.hovered ? Theme.hoverFill : "transparent"
        }

        FocusFrame { control: root }
    }

    Timer {
        id: previewTimer

        interval: root.livePreviewInterval
        onTriggered: root.flushPreview()
    }

    Component {
        id: dialogComponent

        ColorDialog {
            title: root.dialogTitle
            options: root.showAlphaChannel ? ColorDialog.ShowAlphaChannel : 0
            onSelectedColorChanged: root.previewColor(selectedColor)
            onAccepted: root.finish(selectedColor, ColorChange.DialogAccepted)
            onRejected: root.finish(root.dialogInitialColor, ColorChange.DialogRejected)
        }
    }
}
