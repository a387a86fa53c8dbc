import QtQuick
import QtQuick.Layouts

// What a panel says while it has nothing to edit.
ZmLabel {
    Layout.fillWidth: true
    color: Theme.mutedText
    wrapMode: Text.Wrap
}
