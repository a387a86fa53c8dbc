import QtQuick
import QtQuick.Layouts

// A row of a form: its label on the left, its controls on the right.
RowLayout {
    id: root

    property string label

    Layout.fillWidth: true
    spacing: Theme.spaceM

    ZmLabel {
        Layout.preferredWidth: 92    // rows below each other line up
        text: root.label
        color: Theme.mutedText
        elide: Text.ElideRight
    }
}
