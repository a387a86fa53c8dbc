import QtQuick

// Takes the place of a name while it is changed. Return and leaving commit, Escape does not; a blank name commits
// nothing.
ZmTextField {
    id: root

    required property string name
    property bool over: false

    signal committed(string name)
    signal ended()

    function finish(accept) {
        if (over)
            return
        over = true
        if (accept && text.trim() && text !== name)
            committed(text)
        ended()
    }

    Accessible.name: qsTr("Layer name")
    onAccepted: finish(true)
    onActiveFocusChanged: {
        if (!activeFocus)
            finish(true)
    }
    Keys.onEscapePressed: finish(false)
    Component.onCompleted: {
        text = name
        forceActiveFocus()
        selectAll()
    }
}
