pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// Asks for size and background of a blank document and starts it.
ZmDialog {
    id: root

    required property DocumentFileController documentFileController

    property int documentWidth: 1920
    property int documentHeight: 1080
    property color backgroundColor: "white"
    property string failure

    readonly property int minimumSide: 1
    readonly property int maximumSide: 10000
    readonly property list<DocumentPreset> presets: [
        DocumentPreset { group: qsTr("Screen"); name: qsTr("HD"); width: 1280; height: 720 },
        DocumentPreset { group: qsTr("Screen"); name: qsTr("Full HD"); width: 1920; height: 1080 },
        DocumentPreset { group: qsTr("Screen"); name: qsTr("4K"); width: 3840; height: 2160 },
        DocumentPreset { group: qsTr("Social"); name: qsTr("Square"); width: 1080; height: 1080 },
        DocumentPreset { group: qsTr("Social"); name: qsTr("Story"); width: 1080; height: 1920 },
        DocumentPreset { group: qsTr("Photo"); name: qsTr("Photo 3:2"); width: 3000; height: 2000 },
        DocumentPreset { group: qsTr("Photo"); name: qsTr("Photo 4:3"); width: 4000; height: 3000 },
        DocumentPreset { group: qsTr("Print, 300 ppi"); name: qsTr("A4"); width: 2480; height: 3508 },
        DocumentPreset { group: qsTr("Print, 300 ppi"); name: qsTr("A5"); width: 1748; height: 2480 },
        DocumentPreset { group: qsTr("Print, 300 ppi"); name: qsTr("Letter"); width: 2550; height: 3300 }
    ]
    // The preset that the size is, if need be lying on its side.
    readonly property int presetIndex: {
        const upright = presets.findIndex(p => p.width === documentWidth && p.height === documentHeight)
        return upright >= 0 ? upright
                            : presets.findIndex(p => p.width === documentHeight && p.height === documentWidth)
    }

    signal boardReset()

    function setSize(width, height) {
        failure = ""
        documentWidth = width
        documentHeight = height
    }

    function choosePreset(index) {
        const chosen = presets[Math.max(0, Math.min(index, presets.length - 1))]
        setSize(chosen.width, chosen.height)
    }

    function create() {
        if (documentFileController.resetDocument(documentWidth, documentHeight, backgroundColor))
            accept()
        else
            failure = documentFileController.lastError
    }

    // The sides as a proportion of small numbers, else as a multiple of the shorter side.
    function proportions(width, height) {
        let a = width
        let b = height
        while (b > 0)
            [a, b] = [b, a % b]
        if (width / a <= 32 && height / a <= 32)
            return "%1:%2".arg(width / a).arg(height / a)
        const times = Number(Math.max(width, height) / Math.min(width, height)).toLocaleString(Qt.locale(), "f", 2)
        return width > height ? "%1:1".arg(times) : "1:%1".arg(times)
    }

    title: qsTr("New Document")
    width: Math.min(680, room.width - 2 * Theme.spaceXXL)
    height: Math.min(520, room.height - 2 * Theme.spaceL)
    defaultButton: createButton
    onAboutToShow: failure = ""
    onOpened: widthInput.forceActiveFocus()
    onClosed: {
        if (result === Dialog.Accepted)
            boardReset()
    }

    contentItem: RowLayout {
        spacing: Theme.spaceXXL - Theme.spaceS

        Rectangle {
            Layout.preferredWidth: 236
            Layout.fillHeight: true
            radius: Theme.radius
            color: Theme.sunken
            border.color: presetList.activeFocus ? Theme.accent : Theme.hairline
            border.width: presetList.activeFocus ? Theme.focusWidth : 1

            ListView {
                id: presetList

                anchors.fill: parent
                anchors.margins: Theme.spaceS
                clip: true
                activeFocusOnTab: true
                keyNavigationEnabled: false
                boundsBehavior: Flickable.StopAtBounds
                model: root.presets
                currentIndex: root.presetIndex
                highlightMoveDuration: 0
                Accessible.role: Accessible.List
                Accessible.name: qsTr("Presets")
                Keys.onUpPressed: root.choosePreset(root.presetIndex - 1)
                Keys.onDownPressed: root.choosePreset(root.presetIndex + 1)
                ScrollBar.vertical: ZmScrollBar {}

                delegate: NewDocumentPreset {
                    width: presetList.width - (presetList.contentHeight > presetList.height ? Theme.spaceL : 0)
                    beginsGroup: index === 0 || root.presets[index - 1]?.group !== modelData.group
                    current: index === root.presetIndex
                    onChosen: {
                        presetList.forceActiveFocus(Qt.MouseFocusReason)
                        root.choosePreset(index)
                    }
                    onTriggered: {
                        root.choosePreset(index)
                        root.create()
                    }
                }
            }
        }

        ColumnLayout {
            spacing: Theme.spaceL

            Item {
                id: stage

                readonly property real pageScale: Math.min(width / root.documentWidth, height / root.documentHeight)

                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.margins: Theme.spaceS

                Rectangle {
                    anchors.centerIn: parent
                    width: Math.max(2, Math.round(root.documentWidth * stage.pageScale))
                    height: Math.max(2, Math.round(root.documentHeight * stage.pageScale))
                    color: "transparent"

                    Rectangle {
                        anchors.fill: parent
                        anchors.topMargin: 2
                        anchors.bottomMargin: -3
                        anchors.leftMargin: -1
                        anchors.rightMargin: -1
                        radius: 3
                        color: Qt.alpha("black", Theme.dark ? 0.35 : 0.1)
                    }

                    Checkerboard {
                        anchors.fill: parent
                        visible: root.backgroundColor.a < 1
                    }

                    Rectangle {
                        anchors.fill: parent
                        color: root.backgroundColor
                        border.color: Theme.outline
                    }
                }
            }

            Label {
                Layout.alignment: Qt.AlignHCenter
                text: qsTr("%1 × %2 px   ·   %3   ·   %4 megapixels")
                        .arg(root.documentWidth).arg(root.documentHeight)
                        .arg(root.proportions(root.documentWidth, root.documentHeight))
                        .arg(Number(root.documentWidth * root.documentHeight / 1e6).toLocaleString(Qt.locale(), "f", 1))
                color: Theme.mutedText
                font.pixelSize: Theme.fontSmall
            }

            GridLayout {
                Layout.fillWidth: true
                columns: 4
                columnSpacing: Theme.spaceM
                rowSpacing: Theme.spaceM

                Label {
                    text: qsTr("Size")
                    color: Theme.mutedText
                }

                NumericInput {
                    id: widthInput

                    Layout.fillWidth: true
                    Layout.preferredWidth: 100
                    value: root.documentWidth
                    from: root.minimumSide
                    to: root.maximumSide
                    unit: qsTr("px")
                    Accessible.name: qsTr("Width")
                    onEdited: value => root.setSize(Math.round(value), root.documentHeight)
                }

                ZmSmallIconButton {
                    size: Theme.controlHeight
                    focusPolicy: Qt.StrongFocus     // a field that is being typed into takes its text over first
                    icon.name: "swap"
                    toolTip: qsTr("Swap width and height")
                    onClicked: root.setSize(root.documentHeight, root.documentWidth)
                }

                NumericInput {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 100
                    value: root.documentHeight
                    from: root.minimumSide
                    to: root.maximumSide
                    unit: qsTr("px")
                    Accessible.name: qsTr("Height")
                    onEdited: value => root.setSize(root.documentWidth, Math.round(value))
                }

                Label {
                    text: qsTr("Background")
                    color: Theme.mutedText
                }

                ZmSelectBox {
                    id: backgroundBox

                    readonly property var named: ({white: "#ffffffff", black: "#ff000000", transparent: "#00000000"})

                    Layout.columnSpan: 2
                    Layout.fillWidth: true
                    options: [
                        {text: qsTr("White"), value: "white"},
                        {text: qsTr("Black"), value: "black"},
                        {text: qsTr("Transparent"), value: "transparent"},
                        {text: qsTr("Custom"), value: "custom"}
                    ]
                    value: Object.keys(named).find(name => Qt.colorEqual(named[name], root.backgroundColor)) ?? "custom"
                    Accessible.name: qsTr("Background")
                    onSelected: value => {
                        if (value === "custom")
                            backgroundButton.openDialog()
                        else
                            root.backgroundColor = named[value]
                    }
                }

                ColorPickerButton {
                    id: backgroundButton

                    Layout.fillWidth: true
                    currentColor: root.backgroundColor
                    dialogTitle: qsTr("Choose Background Color")
                    onColorChanged: color => root.backgroundColor = color
                }
            }

            Label {
                Layout.fillWidth: true
                visible: text
                text: root.failure
                color: Theme.danger
                wrapMode: Text.Wrap
                textFormat: Text.PlainText
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
            }
        }
    }

    footer: ZmDialogFooter {
        dialog: root
        onAccepted: root.create()
        onRejected: root.reject()

        ZmDialogButton {
            text: qsTr("Cancel")
            DialogButtonBox.buttonRole: DialogButtonBox.RejectRole
        }

        ZmDialogButton {
            id: createButton

            text: qsTr("Create")
            highlighted: true
            DialogButtonBox.buttonRole: DialogButtonBox.AcceptRole
        }
    }
}
