import QtQuick
import ZelmoraAtelier

// Carries out work that holds the interface's thread. The pointer tells of it at once; of work that is expected to take
// long a turning ring tells, too, over the canvas. The ring's animations run on the thread that draws, so they go on
// meanwhile; they cost a frame before the work begins, and without a graphics card some of the processor.
Item {
    id: root

    readonly property bool running: works.length > 0
    property var works: []      // maps with work, a function, and slow
    readonly property bool showsRing: running && works[0].slow

    signal finished()

    function during(work, slow) {
        works = works.concat([{ work, slow }])
    }

    function carryOutNext() {
        try {
            works[0].work()
        } finally {
            works = works.slice(1)
            if (!running)
                finished()
        }
    }

    visible: showsRing
    Accessible.role: Accessible.Indicator
    Accessible.name: qsTr("Busy")
    Accessible.ignored: !running

    BusyPointer {
        active: root.running
    }

    // The ring is on the screen.
    Connections {
        target: root.Window.window
        enabled: root.showsRing

        function onFrameSwapped() {
            if (root.showsRing)
                root.carryOutNext()
        }
    }

    // Without a ring there is no frame to wait for, and a window that is not shown has none.
    Timer {
        interval: root.showsRing ? 50 : 1
        repeat: true
        running: root.running
        onTriggered: root.carryOutNext()
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
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
            running: root.showsRing
        }

        Ring {
            anchors.centerIn: parent
            turning: root.showsRing
        }
    }
}
