pragma Singleton

import QtQuick

// The dialogs that are open now. Each tells of itself: ZmDialog and ZmFileDialog do it for all that are made of them.
QtObject {
    id: root

    readonly property bool any: dialogs.length > 0
    // They may be windows of their own, which let the keys of actions through.
    readonly property bool anyFileDialog: Array.from(dialogs).some(dialog => dialog instanceof ZmFileDialog)
    property list<QtObject> dialogs

    function report(dialog: QtObject, open: bool) {
        const others = Array.from(dialogs).filter(other => other !== dialog)
        dialogs = open ? others.concat([dialog]) : others
    }
}
