import QtQuick
import QtQuick.Controls

// Names a control, some time after the pointer rests on it.
ToolTip {
    id: root

    delay: Application.styleHints.mousePressAndHoldInterval
    padding: Theme.spaceS + 1
    leftPadding: Theme.spaceM
    rightPadding: Theme.spaceM

    contentItem: Text {
        text: root.text
        font: root.font
        color: Theme.palette.toolTipText ?? Theme.text
        wrapMode: Text.Wrap
        textFormat: Text.PlainText
    }

    background: Rectangle {
        radius: Theme.radius
        color: Theme.raised
        border.color: Theme.outline
    }
}
