import QtQuick
import QtQuick.Controls

// A push button; `highlighted` marks the one that a dialog expects.
Button {
    id: root

    readonly property bool accented: highlighted && enabled
    readonly property color inkColor: accented ? Theme.accentText : Theme.text

    implicitHeight: Theme.controlHeight
    leftPadding: Theme.spaceL
    rightPadding: Theme.spaceL
    topPadding: 0
    bottomPadding: 0
    spacing: Theme.spaceS + Theme.spaceXS
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : Theme.disabledOpacity
    icon.width: Theme.iconSize
    icon.height: Theme.iconSize
    icon.color: inkColor
    palette.buttonText: inkColor
    Accessible.name: text

    background: Rectangle {
        radius: Theme.radius
        color: root.accented ? (root.down ? Qt.darker(Theme.accent, 1.18)
                                          : root.hovered ? Qt.lighter(Theme.accent, 1.08) : Theme.accent)
                             : root.flat ? "transparent" : Theme.raised
        border.width: root.flat || root.accented ? 0 : 1
        border.color: Theme.outline

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: root.accented ? "transparent" : root.down ? Theme.pressedFill
                                                             : root.hovered ? Theme.hoverFill : "transparent"
        }

        FocusFrame {
            control: root
            anchors.margins: root.accented ? -3 : 0
        }
    }
}
