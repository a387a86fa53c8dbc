import QtQuick
import QtQuick.Controls

// A modal dialog in the middle of the window. Return presses the button that has the focus, or else accepts; Escape
// rejects.
Dialog {
    id: root

    anchors.centerIn: Overlay.overlay
    modal: true
    focus: true
    padding: 20
    topPadding: 12

    header: Label {
        text: root.title
        visible: root.title
        topPadding: 18
        leftPadding: root.leftPadding
        rightPadding: root.rightPadding
        font.bold: true
        font.pixelSize: Math.round(Application.font.pixelSize * 1.15) || 15
        elide: Text.ElideRight
    }

    footer: DialogButtonBox {
        id: buttons

        visible: count > 0
        padding: 16
        topPadding: 0
        spacing: 8
        alignment: Qt.AlignRight
        background: null
    }

    background: Rectangle {
        radius: 8
        color: root.palette.window
        border.color: root.palette.mid
    }

    Shortcut {
        sequences: ["Return", "Enter"]
        enabled: root.visible
        onActivated: {
            const focused = buttons.Window.activeFocusItem
            if (focused instanceof AbstractButton)
                focused.click()
            else
                root.accept()
        }
    }
}
