import QtQuick
import QtQuick.Templates as T

// Text that leads somewhere.
T.AbstractButton {
    id: root

    implicitWidth: label.implicitWidth
    implicitHeight: label.implicitHeight
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Link
    Accessible.name: text

    contentItem: Text {
        id: label

        text: root.text
        font.pixelSize: Theme.fontBody
        font.underline: root.hovered
        color: Theme.link
        elide: Text.ElideRight
        textFormat: Text.PlainText
    }

    background: FocusFrame {
        control: root
        anchors.margins: -3
    }

    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
