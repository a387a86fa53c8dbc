import QtQuick
import ZelmoraAtelier

// Has the work carried out that holds the interface's thread. The pointer tells of it at once; of work that is expected
// to take long a turning ring tells, too, over the canvas. The ring's animations run on the thread that draws, so they go
// on meanwhile; they cost a frame before the work begins, and without a graphics card some of the processor.
Item {
    id: root

    required property WorkQueue work
    readonly property bool showsRing: work.running && work.slow

    visible: showsRing
    Accessible.role: Accessible.Indicator
    Accessible.name: qsTr("Busy")
    Accessible.ignored: !work.running

    BusyPointer {
        active: root.work.running
    }

    // The ring is on the screen.
    Connections {
        target: root.Window.window
        enabled: root.showsRing

        function onFrameSwapped() {
            if (root.showsRing)
                root.work.carryOutNext()
        }
    }

    // Without a ring there is no frame to wait for, and a window that is not shown has none.
    Timer {
        interval: root.showsRing ? 50 : 1
        repeat: true
        running: root.work.running
        onTriggered: root.work.carryOutNext()
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        onWheel: wheel => wheel.accepted = true
    }

    Rectangle {
        id: ground

        anchors.centerIn: parent
        width: 56
        height: 56
        radius: Theme.largeRadius
        color: Theme.surface
        opacity: 0

        // Next to nothing until Theme.busyDelayMs have passed.
        OpacityAnimator {
            target: ground
            from: 0
            to: 1
            duration: 2 * Theme.busyDelayMs
            easing.type: Easing.InQuint
            running: root.showsRing
        }

        Ring {
            anchors.centerIn: parent
            width: 28       // a shape takes the size of its path for its own, and the path would follow that
            height: 28
            turning: root.showsRing
        }
    }
}
