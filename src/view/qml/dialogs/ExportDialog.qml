import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// The settings of an export beside a preview of its result. Opened on a session that the controller has begun; ends the
// session when it closes, unless the user goes on to choose the file.
ZmDialog {
    id: root

    required property ExportController controller

    // The session outlives the dialog, for the file dialog that follows.
    property bool preserveControllerOnHide: false
    readonly property int preferredWidth: 640
    readonly property int preferredHeight: 620
    readonly property int minimumWidth: 560
    readonly property int minimumHeight: 560
    // What the window has room for comes before the minimum: the buttons have to be in reach.
    readonly property real spaceWidth: room.width - 2 * Theme.spaceXXL
    readonly property real spaceHeight: room.height - 2 * Theme.spaceM

    signal saveRequested()
    signal saveSetupCanceled()

    // Goes on to the choice of a file, once the preview, which is what will be written, is that of the settings.
    function acceptForSave() {
        if (!controller.previewReady)
            return
        preserveControllerOnHide = true
        close()
    }

    title: qsTr("Export Settings")
    // Grows with the window, for the preview.
    width: Math.min(spaceWidth, Math.max(minimumWidth, preferredWidth + 0.72 * (spaceWidth - preferredWidth)))
    height: Math.min(spaceHeight, Math.max(minimumHeight, preferredHeight + 0.72 * (spaceHeight - preferredHeight)))
    defaultButton: saveButton
    onAboutToShow: {
        preserveControllerOnHide = false
        preview.fit()
    }
    onOpened: formatBox.forceActiveFocus()
    onClosed: {
        if (preserveControllerOnHide) {
            saveRequested()
        } else {
            controller.end()
            saveSetupCanceled()
        }
    }

    contentItem: RowLayout {
        spacing: Theme.spaceXL + Theme.spaceS

        ExportPreview {
            id: preview

            Layout.fillWidth: true
            Layout.fillHeight: true
            source: root.controller.previewSource
            sourcePictureSize: Qt.size(root.controller.outputWidth, root.controller.outputHeight)
            transparent: root.controller.transparentBackground
            busy: root.controller.previewBusy
            error: root.controller.previewError
        }

        ColumnLayout {
            Layout.fillHeight: true
            Layout.preferredWidth: 256
            Layout.minimumWidth: 256
            Layout.maximumWidth: 256
            spacing: Theme.spaceL

            GridLayout {
                Layout.fillWidth: true
                columns: 3
                columnSpacing: Theme.spaceM
                rowSpacing: Theme.spaceM

                Label {
                    Layout.preferredWidth: 56
                    text: qsTr("Format")
                    color: Theme.mutedText
                }

                ZmSelectBox {
                    id: formatBox

                    Layout.columnSpan: 2
                    Layout.fillWidth: true
                    options: [
                        {text: qsTr("JPEG"), value: "jpeg"},
                        {text: qsTr("WebP"), value: "webp"},
                        {text: qsTr("WebP, transparent"), value: "webpTransparent"},
                        {text: qsTr("PNG"), value: "png"},
                        {text: qsTr("PNG, transparent"), value: "pngTransparent"}
                    ]
                    value: root.controller.formatKey
                    Accessible.name: qsTr("Format")
                    onSelected: value => root.controller.formatKey = value
                }

                Label {
                    Layout.columnSpan: 3
                    Layout.fillWidth: true
                    visible: root.controller.prefersTransparentExport
                    text: qsTr("This image contains transparency. Choose a transparent-background format to preserve it.")
                    font.pixelSize: Theme.fontSmall
                    color: root.controller.transparentBackground ? Theme.mutedText : Theme.danger
                    wrapMode: Text.Wrap
                    textFormat: Text.PlainText
                }

                ZmToolSeparator {
                    Layout.columnSpan: 3
                    Layout.fillWidth: true
                    horizontal: true
                }

                Label {
                    text: qsTr("Width")
                    color: Theme.mutedText
                }

                NumericInput {
                    Layout.fillWidth: true
                    value: root.controller.outputWidth
                    from: 16
                    to: root.controller.maximumDimension
                    unit: qsTr("px")
                    Accessible.name: qsTr("Width")
                    onEdited: value => root.controller.outputWidth = value
                }

                Item {
                    Layout.rowSpan: 2
                    Layout.fillHeight: true
                    implicitWidth: linkButton.width

                    // From the fields to the link that couples them.
                    Rectangle {
                        x: -4
                        width: parent.width / 2 + 4
                        y: Theme.controlHeight / 2
                        height: parent.height - Theme.controlHeight
                        color: "transparent"
                        border.color: Theme.outline
                        radius: 3
                        opacity: root.controller.keepAspectRatio ? 1 : 0.45

                        Rectangle {
                            x: 0
                            y: 1
                            width: 4
                            height: parent.height - 2
                            color: Theme.surface
                        }
                    }

                    Rectangle {
                        anchors.fill: linkButton
                        radius: Theme.radius
                        color: Theme.surface
                    }

                    ZmSmallIconButton {
                        id: linkButton

                        anchors.verticalCenter: parent.verticalCenter
                        size: Theme.controlHeight
                        focusPolicy: Qt.StrongFocus     // a field that is being typed into takes its text over first
                        icon.name: root.controller.keepAspectRatio ? "link" : "unlink"
                        checked: root.controller.keepAspectRatio
                        toolTip: qsTr("Keep the proportions")
                        Accessible.role: Accessible.CheckBox
                        Accessible.checkable: true
                        Accessible.checked: checked
                        onClicked: root.controller.keepAspectRatio = !root.controller.keepAspectRatio
                    }
                }

                Label {
                    text: qsTr("Height")
                    color: Theme.mutedText
                }

                NumericInput {
                    Layout.fillWidth: true
                    value: root.controller.outputHeight
                    from: 16
                    to: root.controller.maximumDimension
                    unit: qsTr("px")
                    Accessible.name: qsTr("Height")
                    onEdited: value => root.controller.outputHeight = value
                }

                ZmToolSeparator {
                    Layout.columnSpan: 3
                    Layout.fillWidth: true
                    horizontal: true
                }

                Label {
                    visible: root.controller.qualityControlEnabled
                    text: qsTr("Quality")
                    color: Theme.mutedText
                }

                RowLayout {
                    Layout.columnSpan: 2
                    Layout.fillWidth: true
                    visible: root.controller.qualityControlEnabled
                    spacing: Theme.spaceM

                    ZmSlider {
                        Layout.fillWidth: true
                        from: 0
                        to: 100
                        stepSize: 1
                        value: root.controller.quality
                        Accessible.name: qsTr("Quality")
                        onMoved: root.controller.quality = Math.round(value)
                    }

                    NumericInput {
                        Layout.preferredWidth: 64
                        value: root.controller.quality
                        from: 0
                        to: 100
                        unit: qsTr("%")
                        Accessible.name: qsTr("Quality in percent")
                        onEdited: value => root.controller.quality = value
                    }
                }

                RowLayout {
                    Layout.columnSpan: 3
                    Layout.minimumHeight: Theme.controlHeight
                    visible: !root.controller.qualityControlEnabled

                    Label {
                        Layout.fillWidth: true
                        text: qsTr("PNG compression")
                        color: Theme.mutedText
                    }

                    Label {
                        text: qsTr("Max")
                    }
                }

                ZmToolSeparator {
                    Layout.columnSpan: 3
                    Layout.fillWidth: true
                    horizontal: true
                }

                ZmCheckBox {
                    Layout.columnSpan: 3
                    Layout.fillWidth: true
                    text: qsTr("Lossless document file")
                    checked: root.controller.losslessDocumentFile
                    onToggled: {
                        root.controller.losslessDocumentFile = checked
                        checked = Qt.binding(() => root.controller.losslessDocumentFile)
                    }
                }

                Label {
                    Layout.columnSpan: 3
                    Layout.fillWidth: true
                    Layout.topMargin: -Theme.spaceM
                    leftPadding: Theme.iconSize + Theme.spaceM
                    text: qsTr("Keeps every pixel of the editable document, in a larger file.")
                    font.pixelSize: Theme.fontSmall
                    color: Theme.mutedText
                    wrapMode: Text.Wrap
                    textFormat: Text.PlainText
                }
            }

            Item { Layout.fillHeight: true }

            ColumnLayout {
                Layout.fillWidth: true
                spacing: Theme.spaceXS

                Label {
                    text: qsTr("Estimated Image Size:")
                    color: Theme.mutedText
                }

                Label {
                    text: root.controller.previewBusy ? qsTr("Calculating…")
                                                      : root.controller.encodedSizeText || qsTr("Unavailable")
                    font.pixelSize: Theme.fontTitle
                    font.weight: Font.DemiBold
                    textFormat: Text.PlainText
                }
            }
        }
    }

    footer: ZmDialogFooter {
        dialog: root
        note: qsTr("An editable Zelmora document (.zelmora) is saved alongside the image.")
        onAccepted: root.acceptForSave()
        onRejected: root.reject()

        ZmDialogButton {
            text: qsTr("Cancel")
            DialogButtonBox.buttonRole: DialogButtonBox.RejectRole
        }

        ZmDialogButton {
            id: saveButton

            text: qsTr("Save…")
            highlighted: true
            enabled: root.controller.previewReady
            DialogButtonBox.buttonRole: DialogButtonBox.AcceptRole
        }
    }
}
