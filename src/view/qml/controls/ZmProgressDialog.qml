import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// Tells what is going on while nothing else can be done. Only who opened it closes it.
ZmDialog {
    id: root

    property string text
    property real value: 0              // 0..1, unless indeterminate
    property bool indeterminate: true

    width: Math.min(340, room.width - 2 * Theme.spaceXXL)
    topPadding: Theme.spaceXL + Theme.spaceS
    bottomPadding: Theme.spaceXXL
    closePolicy: Popup.NoAutoClose
    returnAccepts: false
    footer: null

    contentItem: ColumnLayout {
        spacing: Theme.spaceL

        Label {
            Layout.fillWidth: true
            text: root.text
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
        }

        ZmProgressBar {
            Layout.fillWidth: true
            value: root.value
            indeterminate: root.indeterminate
            Accessible.name: root.text
        }
    }
}
