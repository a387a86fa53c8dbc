import QtQuick
import QtQuick.Controls

// A flat button for bars: shows its frame only under the pointer, when pressed, or with the keyboard's focus.
ToolButton {
    id: root

    property string toolTip

    leftPadding: 8
    rightPadding: 8
    topPadding: 3
    bottomPadding: 3
    focusPolicy: Qt.TabFocus
    opacity: enabled ? 1 : 0.45
    Accessible.name: toolTip || text

    ToolTip.text: toolTip
    ToolTip.visible: toolTip && hovered
    ToolTip.delay: Application.styleHints.mousePressAndHoldInterval

    background: Rectangle {
        implicitWidth: 30
        implicitHeight: 24
        radius: 4
        color: root.down || root.checked ? root.palette.mid : root.hovered ? root.palette.midlight : "transparent"
        border.width: root.visualFocus ? 2 : 0
        border.color: root.palette.highlight
    }
}
