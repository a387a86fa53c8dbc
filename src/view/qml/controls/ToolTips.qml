pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick

// The one tool tip that all controls share: only one is ever to be seen, so none has its own. A control asks for it when
// the pointer or the keys come to it, and takes it back when they leave or when it is pressed.
QtObject {
    id: root

    property ZmToolTip toolTip: null
    // What the tool tip is about, from when it is asked for; null for nothing.
    property Item subject: null
    readonly property bool subjectVisible: subject?.visible ?? false

    readonly property Component component: Component {
        ZmToolTip {}
    }

    // Shows `text` for `control` after a while; an empty one takes it back. It appears below the control, or beside it:
    // for those that stand below each other.
    function ask(control: Item, text: string, beside: bool) {
        if (text)
            begin(control, text, "", Qt.size(0, 0), beside)
        else
            end(control)
    }

    // The same with a picture, as large as told.
    function askForPicture(control: Item, source: string, pictureSize: size) {
        if (source)
            begin(control, "", source, pictureSize, true)
        else
            end(control)
    }

    function begin(control: Item, text: string, source: string, pictureSize: size, beside: bool) {
        if (!toolTip)
            toolTip = component.createObject(root) as ZmToolTip
        if (subject !== control)
            toolTip.close()
        subject = control
        toolTip.parent = control
        toolTip.text = text
        toolTip.pictureSource = source
        toolTip.pictureSize = pictureSize
        toolTip.beside = beside
        toolTip.open()
    }

    // A control that is pressed ends it, too.
    function end(control: Item) {
        if (subject === control)
            hide()
    }

    function hide() {
        subject = null
        toolTip.close()
    }

    // A control may go away, or be hidden, under a pointer that rests.
    onSubjectVisibleChanged: {
        if (!subjectVisible && toolTip)
            hide()
    }
}
