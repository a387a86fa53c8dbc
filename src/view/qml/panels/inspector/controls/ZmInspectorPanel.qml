import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// The frame of a panel: sections below each other, which scroll when the window is low. Not flicked by the mouse.
ScrollView {
    id: root

    default property alias sections: column.data

    padding: 0
    contentWidth: availableWidth
    contentHeight: Math.max(column.implicitHeight + 2 * Theme.spaceL, availableHeight)
    ScrollBar.horizontal.policy: ScrollBar.AlwaysOff
    ScrollBar.vertical: ZmScrollBar {
        parent: root
        x: root.width - width
        height: root.height
    }

    contentItem: Flickable {
        id: flickable

        boundsBehavior: Flickable.StopAtBounds

        // A press beside the fields ends the edit of a field.
        TapHandler {
            onPressedChanged: {
                if (pressed)
                    flickable.forceActiveFocus(Qt.MouseFocusReason)
            }
        }

        ColumnLayout {
            id: column

            x: Theme.spaceL
            y: Theme.spaceL
            width: root.availableWidth - 2 * Theme.spaceL
            spacing: Theme.spaceL
        }
    }
}
