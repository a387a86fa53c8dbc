import QtQuick
import QtQuick.Controls

// A modal dialog in the middle of the window. Return presses the button that has the focus, or else accepts; Escape
// rejects. The buttons stand in `footer`, by default those of `standardButtons`.
Dialog {
    id: root

    anchors.centerIn: Overlay.overlay
    modal: true
    focus: true
    padding: Theme.spaceXXL - Theme.spaceS
    topPadding: Theme.spaceM
    bottomPadding: Theme.spaceXL

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
        enabled: root.visible
        onActivated: {
            const focused = root.contentItem.Window.activeFocusItem
            if (focused instanceof AbstractButton)
                focused.click()
            else
                root.accept()
        }
    }
}
