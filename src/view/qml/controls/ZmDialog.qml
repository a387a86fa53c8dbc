import QtQuick
import QtQuick.Controls
import QtQuick.Templates as T // what all buttons and lists are, whatever the style

// A modal dialog in the middle of the window. Return presses the button that has the focus, or else `defaultButton`, or
// else accepts; Escape rejects. The buttons stand in `footer`, by default those of `standardButtons`.
Dialog {
    id: root

    property T.AbstractButton defaultButton: null
    property bool returnAccepts: true
    // Of the window. The parent may be any item of it.
    readonly property size room: Qt.size(Overlay.overlay?.width ?? 800, Overlay.overlay?.height ?? 520)
    readonly property Item focused: contentItem.Window.activeFocusItem
    readonly property bool listOpen: focused instanceof T.ComboBox && focused.popup.visible

    function pressReturn() {
        if (focused instanceof T.AbstractButton && !focused.checkable) {
            focused.click()
            return
        }
        // A field that is being typed into takes its text over as it loses the focus.
        if (focused instanceof T.TextField) {
            const field = focused
            contentItem.forceActiveFocus()
            field.forceActiveFocus()
        }
        if (!defaultButton)
            accept()
        else if (defaultButton.enabled)
            defaultButton.clicked()     // click() would take the focus along
    }

    anchors.centerIn: Overlay.overlay
    modal: true
    focus: true
    closePolicy: Popup.CloseOnEscape
    padding: Theme.spaceXXL - Theme.spaceS
    topPadding: Theme.spaceM
    bottomPadding: Theme.spaceXL
    onVisibleChanged: OpenDialogs.report(root, visible)
    Component.onDestruction: OpenDialogs.report(root, false)

    header: Label {
        text: root.title
        visible: root.title
        topPadding: Theme.spaceXL + Theme.spaceXS
        bottomPadding: Theme.spaceS
        leftPadding: root.leftPadding
        rightPadding: root.rightPadding
        font.weight: Font.DemiBold
        font.pixelSize: Theme.fontTitle
        wrapMode: Text.Wrap
        textFormat: Text.PlainText
    }

    footer: ZmDialogButtons {
        id: buttons

        dialog: root
    }

    background: PopupSurface {
        radius: Theme.largeRadius
        color: Theme.surface
    }

    Overlay.modal: Rectangle {
        color: Qt.alpha("black", Theme.dark ? 0.45 : 0.28)
    }

    Shortcut {
        sequences: ["Return", "Enter"]
        enabled: root.visible && root.returnAccepts && !root.listOpen
        onActivated: root.pressReturn()
    }
}
