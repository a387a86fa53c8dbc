import QtQuick
import QtQuick.Controls

// One of several options. `options` is a list of maps with `text` and `value`; `selected` tells the choice of a person.
ComboBox {
    id: root

    property var options: []
    property var value

    signal selected(var value)

    function indexOfValue() {
        return Array.from(options).findIndex(option => option.value === value)
    }

    implicitHeight: Theme.controlHeight
    implicitWidth: 150
    leftPadding: Theme.spaceM
    rightPadding: 26
    topPadding: 0
    bottomPadding: 0
    textRole: "text"
    valueRole: "value"
    model: options
    opacity: enabled ? 1 : Theme.disabledOpacity
    currentIndex: indexOfValue()
    // New options and a choice move the index by themselves.
    onModelChanged: currentIndex = Qt.binding(indexOfValue)
    onActivated: index => {
        const chosen = valueAt(index)
        currentIndex = Qt.binding(indexOfValue)
        selected(chosen)
    }

    contentItem: Text {
        text: root.displayText
        font: root.font
        color: Theme.text
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        textFormat: Text.PlainText
    }

    indicator: Chevron {
        x: root.width - width - Theme.spaceM - 1
        y: (root.height - height) / 2
        color: Theme.mutedText
    }

    background: Rectangle {
        radius: Theme.radius
        color: Theme.raised
        border.width: root.visualFocus || root.popup.visible ? Theme.focusWidth : 1
        border.color: root.visualFocus || root.popup.visible ? Theme.accent : Theme.outline

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: root.down ? Theme.pressedFill : root.hovered ? Theme.hoverFill : "transparent"
        }
    }

    delegate: ItemDelegate {
        id: option

        required property var model
        required property int index

        width: ListView.view.width
        height: 26
        leftPadding: Theme.spaceM
        text: model[root.textRole]
        highlighted: root.highlightedIndex === index

        contentItem: Text {
            text: option.text
            color: option.highlighted ? Theme.accentText : Theme.text
            font.pixelSize: Theme.fontBody
            font.weight: root.currentIndex === option.index ? Font.DemiBold : Font.Normal
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }

        background: Rectangle {
            radius: Theme.radius - 1
            color: option.highlighted ? Theme.accent : "transparent"
        }
    }

    popup: Popup {
        y: root.height + Theme.spaceXS
        width: root.width
        height: Math.min(contentItem.implicitHeight + 2 * padding, root.Window.height - 2 * Theme.spaceM)
        padding: Theme.spaceS
        margins: Theme.spaceM

        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            model: root.popup.visible ? root.delegateModel : null
            currentIndex: root.highlightedIndex
            ScrollBar.vertical: ZmScrollBar {}
        }

        background: PopupSurface {}
    }
}
