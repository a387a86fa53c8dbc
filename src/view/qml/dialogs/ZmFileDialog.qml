import QtQuick
import QtQuick.Dialogs

// A dialog for a file, which may be a window of its own or the system's.
FileDialog {
    id: root

    onVisibleChanged: OpenDialogs.report(root, visible)
    Component.onDestruction: OpenDialogs.report(root, false)
}
