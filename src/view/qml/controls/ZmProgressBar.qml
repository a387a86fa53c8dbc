import QtQuick
import QtQuick.Controls

// How far work has come, or that it goes on at all.
ProgressBar {
    id: root

    implicitHeight: 6
    implicitWidth: 200

    background: Rectangle {
        radius: 3
        color: Theme.outline
    }

    contentItem: Item {
        clip: true

        Rectangle {
            id: bar

            width: root.indeterminate ? parent.width * 0.35 : parent.width * root.visualPosition
            height: parent.height
            radius: 3
            color: Theme.accent

            XAnimator on x {
                from: -bar.width
                to: root.availableWidth
                duration: 1100
                loops: Animation.Infinite
                running: root.indeterminate && root.visible
            }
        }
    }
}
