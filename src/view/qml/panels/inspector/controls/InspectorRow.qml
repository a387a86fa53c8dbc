import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// A row of a form: its label on the left, its controls on the right.
RowLayout {
    id: root

    property string label

    Layout.fillWidth: true
    spacing: Theme.spaceM

    Label {
        Layout.preferredWidth: 92    // rows below each other line up
        Layout.alignment: Qt.AlignVCenter
        text: root.label
        color: Theme.mutedText
        elide: Text.ElideRight
        textFormat: Text.PlainText
    }
}
