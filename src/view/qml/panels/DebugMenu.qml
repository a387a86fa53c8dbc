import QtQuick

// Switches and short cuts for developers.
ZmMenu {
    id: root

    required property WindowActions actions
    readonly property RuntimeFlags flags: actions.context.flags
    readonly property WindowDialogs dialogs: actions.context.dialogs

    title: qsTr("&Debug")

    ZmMenuItem { action: root.actions.layers.addExampleImage }
    ZmMenuSeparator {}

    ZmMenu {
        title: qsTr("&Runtime Flags")

        ZmMenuItem {
            action: ModeAction {
                text: qsTr("&Missing HEVC Codec")
                active: root.flags.noHevcCodec
                onChosen: root.flags.noHevcCodec = !active
            }
        }
    }

    ZmMenu {
        title: qsTr("Dialog &Previews")

        ZmMenuItem {
            text: qsTr("HEIF Help")
            onTriggered: root.dialogs.previewHeifHelp()
        }
        ZmMenuItem {
            text: qsTr("Save Progress")
            onTriggered: root.dialogs.previewSaveProgress()
        }
        ZmMenuItem {
            text: qsTr("Language Restart")
            onTriggered: root.dialogs.languageRestartDialog.open()
        }
    }
}
