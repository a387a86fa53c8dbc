pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Dialogs
import QtQuick.Templates as T

// A swatch that opens a dialog to choose another colour. Shows `currentColor` and asks for others by `colorChanged`: in
// a stream while the dialog is open, once with DialogAccepted at its end, or once with DialogRejected and the colour
// that it began with.
T.AbstractButton {
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
    // Both are made when they are first needed.
    property ColorDialog dialog: null
    property Timer previewPause: null
    readonly property bool dialogOpen: dialog?.visible ?? false

    signal colorChanged(color color, int reason)

    function openDialog() {
        if (dialogOpen)
            return
        if (!dialog) {
            previewPause = previewPauseComponent.createObject(root) as Timer
            dialog = dialogComponent.createObject(root) as ColorDialog
        }
        dialogInitialColor = currentColor
        lastReportedColor = currentColor
        dialog.selectedColor = currentColor
        dialog.open()
    }

    // The owner follows previews by setting currentColor, so that is nothing to compare with.
    function previewColor(color: color) {
        if (!dialogOpen || !livePreviewEnabled)
            return
        pendingColor = color
        if (!previewPause.running)
            previewPause.start()
    }

    function flushPreview() {
        if (sameColor(pendingColor, lastReportedColor))
            return
        lastReportedColor = pendingColor
        colorChanged(pendingColor, ColorChange.DialogSelection)
    }

    function finish(color: color, reason: int) {
        previewPause.stop()
        colorChanged(color, reason)
    }

    function sameColor(a: color, b: color): bool {
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
            shown: root.currentColor.a < 1
        }

        Rectangle {
            anchors.fill: parent
            color: root.currentColor
            border.color: Theme.swatchOutline
        }
    }

    background: Rectangle {
        radius: Theme.radius
        color: root.down ? Theme.raisedPressed : root.hovered ? Theme.raisedHovered : Theme.raised
        border.width: root.visualFocus ? Theme.focusWidth : 1
        border.color: root.visualFocus ? Theme.accent : Theme.outline
    }

    Component {
        id: previewPauseComponent

        Timer {
            interval: root.livePreviewInterval
            onTriggered: root.flushPreview()
        }
    }

    Component {
        id: dialogComponent

        ColorDialog {
            title: root.dialogTitle
            // Qt does not describe the type of these.
            // qmllint disable missing-type missing-property
            options: root.showAlphaChannel ? ColorDialog.ShowAlphaChannel : 0
            // qmllint enable missing-type missing-property
            onSelectedColorChanged: root.previewColor(selectedColor)
            onAccepted: root.finish(selectedColor, ColorChange.DialogAccepted)
            onRejected: root.finish(root.dialogInitialColor, ColorChange.DialogRejected)
        }
    }
}
