import QtQuick

// A checkable action that shows what the model says: `active` is checked, and a choice never changes that by itself.
ZmAction {
    id: root

    property bool active: false

    signal chosen()

    checkable: true
    checked: active
    onTriggered: {
        chosen()
        checked = Qt.binding(() => root.active)     // triggering has toggled it
    }
}
