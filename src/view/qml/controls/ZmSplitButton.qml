import QtQuick
import QtQuick.Templates as T

// An icon button with a narrow arrow beside it, which opens a menu of related actions.
Row {
    id: root

    required property T.Action action
    property string menuName
    default property alias entries: menu.contentData

    ZmIconButton {
        action: root.action
    }

    ZmToolButton {
        id: arrow

        width: 14
        height: Theme.toolButtonSize
        leftPadding: 0
        rightPadding: 0
        toolTip: root.menuName
        checked: menu.visible
        Accessible.name: root.menuName
        Accessible.role: Accessible.ButtonMenu
        onClicked: menu.visible ? menu.close() : menu.open()

        contentItem: Item {
            Chevron {
                anchors.centerIn: parent
                color: arrow.inkColor
            }
        }

        ZmMenu {
            id: menu

            // The arrow itself closes it, too.
            closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
            y: arrow.height + Theme.spaceXS
            x: -root.width + arrow.width
        }
    }
}
