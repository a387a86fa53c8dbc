import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// A row of a form: its label on the left, its controls on the right.
RowLayout {
    id: root

    property string label
    // Rows below each other line up at any width of the inspector.
    readonly property real labelWidth: Math.round(Math.min(Math.max(width * 0.36, 80), 120))

    Layout.fillWidth: true
    spacing: Theme.spaceM

    Label {
        Layout.preferredWidth: root.labelWidth
        Layout.alignment: Qt.AlignVCenter
        text: root.label
        color: Theme.mutedText
        elide: Text.ElideRight
        textFormat: Text.PlainText
    }
}
