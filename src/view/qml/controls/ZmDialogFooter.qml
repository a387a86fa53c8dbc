import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// The foot of a dialog that decides itself when it closes: a note, and buttons in the order of the platform.
Item {
    id: root

    required property Dialog dialog
    property string note
    default property alias buttons: box.contentData

    signal accepted()
    signal rejected()
    signal discarded()

    implicitWidth: row.implicitWidth
    implicitHeight: row.implicitHeight

    RowLayout {
        id: row

        anchors.fill: parent
        spacing: Theme.spaceXL

        Label {
            Layout.fillWidth: true
            Layout.leftMargin: root.dialog.leftPadding
            Layout.bottomMargin: box.bottomPadding
            text: root.note
            color: Theme.mutedText
            font.pixelSize: Theme.fontSmall
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
        }

        ZmDialogButtons {
            id: box

            dialog: root.dialog
            leftPadding: 0
            onAccepted: root.accepted()
            onRejected: root.rejected()
            onDiscarded: root.discarded()
        }
    }
}
