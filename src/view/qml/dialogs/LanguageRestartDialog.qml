import QtQuick
import QtQuick.Controls

// Asks for a restart after a change of language, in the new language and in the one that the user knew so far.
ZmMessageDialog {
    id: root

    property string previousMessage
    property bool waiting: false
    readonly property string uiLanguage: Qt.uiLanguage

    // To be called before the language is set. Opens once it has changed, and only then.
    function openAfterLanguageSwitch() {
        previousMessage = message
        waiting = true
    }

    message: qsTr("Restart Zelmora Atelier for all changes to take effect.")
    defaultButton: okButton
    onUiLanguageChanged: {
        if (!waiting)
            return
        waiting = false
        Qt.callLater(open)      // once all texts are in the new language
    }
    onOpened: okButton.forceActiveFocus()

    footer: ZmDialogButtons {
        dialog: root

        ZmDialogButton {
            id: okButton

            text: qsTr("OK")
            highlighted: true
            DialogButtonBox.buttonRole: DialogButtonBox.AcceptRole
        }
    }

    Label {
        width: parent.width
        visible: text && text !== root.message
        topPadding: Theme.spaceM
        text: root.previousMessage
        color: Theme.mutedText
        wrapMode: Text.Wrap
        textFormat: Text.PlainText
    }
}
