import QtQuick
import QtQuick.Controls

// A dialog that is made when it is first opened and kept afterwards.
QtObject {
    id: root

    required property Component component
    required property QtObject host     // the window or an item of it
    property Dialog dialog: null
    readonly property bool visible: dialog?.visible ?? false

    function ensureDialog() {
        if (!dialog)
            dialog = component.createObject(host)
        return dialog
    }

    function open() {
        ensureDialog().open()
    }

    function close() {
        dialog?.close()
    }
}
