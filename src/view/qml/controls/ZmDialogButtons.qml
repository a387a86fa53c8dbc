import QtQuick
import QtQuick.Controls

// The row of buttons at the foot of a dialog. A highlighted one is the expected answer.
DialogButtonBox {
    id: root

    required property Dialog dialog

    visible: count > 0
    standardButtons: dialog.standardButtons
    leftPadding: dialog.leftPadding
    rightPadding: dialog.rightPadding
    topPadding: 0
    bottomPadding: Theme.spaceXL + Theme.spaceXS
    spacing: Theme.spaceM
    alignment: Qt.AlignRight
    background: null
    delegate: ZmDialogButton {
        highlighted: DialogButtonBox.buttonRole === DialogButtonBox.AcceptRole
    }
}
