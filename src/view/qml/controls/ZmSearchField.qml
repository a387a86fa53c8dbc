import QtQuick
import QtQuick.Controls.impl

// A field for words to search. Escape empties it first.
ZmTextField {
    id: root

    leftPadding: Theme.spaceM + Theme.iconSize + Theme.spaceS + Theme.spaceXS
    rightPadding: clearButton.visible ? clearButton.width + Theme.spaceS : Theme.spaceM
    inputMethodHints: Qt.ImhNoPredictiveText
    Accessible.searchEdit: true
    Accessible.name: placeholderText
    Keys.onEscapePressed: event => {
        event.accepted = text.length > 0
        clear()
    }

    ZmIcon {
        x: Theme.spaceM
        anchors.verticalCenter: parent.verticalCenter
        name: "search"
        color: Theme.mutedText
    }

    PlaceholderText {
        x: root.leftPadding
        width: root.width - root.leftPadding - root.rightPadding
        height: root.height
        verticalAlignment: Text.AlignVCenter
        visible: !root.length && !root.preeditText
        text: root.placeholderText
        font: root.font
        color: Theme.palette.placeholderText
        elide: Text.ElideRight
    }

    ZmSmallIconButton {
        id: clearButton

        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceXS
        anchors.verticalCenter: parent.verticalCenter
        size: 24
        visible: root.text
        focusPolicy: Qt.NoFocus
        icon.name: "close"
        toolTip: qsTr("Clear")
        onClicked: {
            root.clear()
            root.forceActiveFocus()
        }
    }
}
