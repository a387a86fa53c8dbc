import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// Shows what Toast asks for, one message at a time; a new one takes the place of the old. Without a click handler it
// lets the pointer through, unless it is persistent: then a click puts it away.
Item {
    id: root

    property real maximumWidth: 480
    readonly property alias message: messageLabel.text
    readonly property alias hint: hintLabel.text
    readonly property bool shown: current.shown
    readonly property bool answersClicks: shown && (current.clickHandler !== null || current.persistent)
    readonly property real spacing: Theme.spaceL

    function answer() {
        const handler = current.clickHandler
        Toast.hide()
        if (handler)
            handler()
    }

    implicitWidth: Math.min(maximumWidth, row.implicitWidth + 2 * spacing)
    implicitHeight: row.implicitHeight + spacing
    opacity: shown ? 1 : 0
    visible: opacity > 0
    activeFocusOnTab: answersClicks
    Accessible.role: current.clickHandler ? Accessible.Button : Accessible.AlertMessage
    Accessible.name: hint ? message + " " + hint : message
    Accessible.onPressAction: answer()
    Keys.onReturnPressed: answer()
    Keys.onEnterPressed: answer()
    Keys.onSpacePressed: answer()
    onShownChanged: {
        if (!shown && activeFocus)
            parent.forceActiveFocus()
    }
    // Who has come here by keys has the time to answer.
    onActiveFocusChanged: {
        if (activeFocus)
            hideTimer.stop()
        else if (shown && !current.persistent)
            hideTimer.restart()
    }

    Behavior on opacity {
        NumberAnimation { duration: 120 }
    }

    QtObject {
        id: current

        property bool shown: false
        property int durationMs: 0
        property bool persistent: false
        property var clickHandler: null

        function show() {
            shown = true
            if (!persistent && !root.activeFocus)
                hideTimer.restart()
        }
    }

    Connections {
        target: Toast

        function onShowRequested(message, hint, delayMs, durationMs, persistent, clickHandler) {
            hideTimer.stop()
            delayTimer.stop()
            current.shown = false
            messageLabel.text = message
            hintLabel.text = hint
            current.durationMs = durationMs
            current.persistent = persistent
            current.clickHandler = clickHandler
            if (delayMs > 0) {
                delayTimer.interval = delayMs
                delayTimer.start()
            } else {
                current.show()
            }
        }

        function onHideRequested() {
            delayTimer.stop()
            hideTimer.stop()
            current.shown = false
        }
    }

    Timer {
        id: delayTimer
        onTriggered: current.show()
    }

    Timer {
        id: hideTimer
        interval: current.durationMs
        onTriggered: current.shown = false
    }

    PopupSurface {
        anchors.fill: parent
    }

    FocusFrame {
        control: root
    }

    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: root.spacing
        anchors.rightMargin: root.spacing
        spacing: root.spacing

        Label {
            id: messageLabel

            Layout.fillWidth: true
            color: Theme.text
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
        }

        Label {
            id: hintLabel

            visible: text.length > 0
            color: current.clickHandler ? Theme.link : Theme.mutedText
            textFormat: Text.PlainText
        }
    }

    MouseArea {
        anchors.fill: parent
        enabled: root.answersClicks
        cursorShape: current.clickHandler ? Qt.PointingHandCursor : Qt.ArrowCursor
        onClicked: root.answer()
    }
}
