import QtQuick

// Turns while something runs, but says nothing of work that is over at once.
Item {
    id: root

    property bool running: false
    property bool shown: false
    property real strokeWidth: 3

    implicitWidth: ring.implicitWidth
    implicitHeight: ring.implicitHeight
    visible: shown
    Accessible.role: Accessible.Indicator
    Accessible.name: qsTr("Busy")
    onRunningChanged: {
        if (!running)
            shown = false
    }

    Timer {
        interval: Theme.busyDelayMs
        running: root.running && !root.shown
        onTriggered: root.shown = true
    }

    Ring {
        id: ring

        anchors.fill: parent
        turning: root.visible
        strokeWidth: root.strokeWidth
    }
}
