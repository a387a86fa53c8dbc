import QtQuick

// Lies over the canvas while work holds the interface's thread, and shows a turning ring once that takes long. Its
// animations run on the thread that draws, so they go on meanwhile.
Item {
    id: root

    readonly property bool running: works.length > 0
    property var works: []

    signal finished()

    // Carries `work` out after the next frame, which shows the cover.
    function during(work) {
        works = works.concat([work])
    }

    function carryOutNext() {
        try {
            works[0]()
        } finally {
            works = works.slice(1)
            if (!running)
                finished()
        }
    }

    visible: running
    Accessible.role: Accessible.Indicator
    Accessible.name: qsTr("Busy")
    Accessible.ignored: !running

    // The cover is on the screen.
    Connections {
        target: root.Window.window
        enabled: root.running

        function onFrameSwapped() {
            if (root.running)
                root.carryOutNext()
        }
    }

    // A window that is not shown has no frames.
    Timer {
        interval: 50
        repeat: true
        running: root.running
        onTriggered: root.carryOutNext()
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        cursorShape: Qt.BusyCursor
        onWheel: wheel => wheel.accepted = true
    }

    Rectangle {
        anchors.centerIn: parent
        width: 56
        height: 56
        radius: Theme.largeRadius
        color: Theme.surface
        opacity: 0

        // Next to nothing until Theme.busyDelayMs have passed.
        OpacityAnimator on opacity {
            from: 0
            to: 1
            duration: 2 * Theme.busyDelayMs
            easing.type: Easing.InQuint
            running: root.running
        }

        Ring {
            anchors.centerIn: parent
            turning: root.running
        }
    }
}
