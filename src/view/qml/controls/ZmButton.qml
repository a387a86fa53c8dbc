import QtQuick
import QtQuick.Controls.impl
import QtQuick.Templates as T

// A push button; `highlighted` marks the one that a dialog expects.
T.Button {
    id: root

    readonly property bool accented: highlighted && enabled
    readonly property color inkColor: accented ? Theme.accentText : Theme.text

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Theme.controlHeight
    leftPadding: Theme.spaceL
    rightPadding: Theme.spaceL
    spacing: Theme.spaceS + Theme.spaceXS
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : Theme.disabledOpacity
    icon.width: Theme.iconSize
    icon.height: Theme.iconSize
    icon.color: inkColor
    Accessible.name: text

    contentItem: IconLabel {
        spacing: root.spacing
        display: root.display
        icon: root.icon
        text: root.text
        font: root.font
        color: root.inkColor
    }

    background: Rectangle {
        radius: Theme.radius
        color: root.accented ? (root.down ? Qt.darker(Theme.accent, 1.18)
                                          : root.hovered ? Qt.lighter(Theme.accent, 1.08) : Theme.accent)
                             : root.flat ? (root.down ? Theme.pressedFill
                                                      : root.hovered ? Theme.hoverFill : "transparent")
                                         : root.down ? Theme.raisedPressed
                                                     : root.hovered ? Theme.raisedHovered : Theme.raised
        border.width: root.flat || root.accented ? 0 : 1
        border.color: Theme.outline

        FocusFrame {
            control: root
            anchors.margins: root.accented ? -3 : 0
        }
    }
}
