import QtQuick
import QtQuick.Controls

// Switches and short cuts for developers.
ZmMenu {
    id: root

    required property ActionContext context
    required property ZmAction addExampleImage
    readonly property WindowDialogs dialogs: context.dialogs

    title: qsTr("&Debug")

    ZmMenuItem { action: root.addExampleImage }
    ZmMenuSeparator {}

    ZmMenu {
        title: qsTr("&Runtime Flags")

        ZmMenuItem {
            action: ModeAction {
                text: qsTr("&Missing HEVC Codec")
                active: root.context.flags.noHevcCodec
                onChosen: root.context.flags.noHevcCodec = !active
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
