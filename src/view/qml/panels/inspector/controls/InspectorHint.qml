import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// What a panel says while it has nothing to edit.
Label {
    Layout.fillWidth: true
    color: Theme.mutedText
    wrapMode: Text.Wrap
    textFormat: Text.PlainText
}
