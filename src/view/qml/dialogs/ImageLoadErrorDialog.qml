import QtQuick
import QtQuick.Controls

// Tells why a picture or a document could not be opened.
ZmDialog {
    id: root

    property string message

    width: Math.min(440, (parent?.width ?? 440) - 48)
    standardButtons: Dialog.Ok

    contentItem: Label {
        text: root.message
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
}
