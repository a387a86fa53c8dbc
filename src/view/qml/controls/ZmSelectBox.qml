pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

// One of several options. `options` is a list of maps with `text` and `value`; `selected` tells the choice of a person.
T.ComboBox {
    id: root

    property list<var> options
    property var value      // of any type that options have
    readonly property int optionIndex: options.findIndex(option => option.value === value)
    // Told without asking for the popup, which is made when it is first opened.
    readonly property bool listShown: down && !pressed

    signal selected(var value)

    implicitHeight: Theme.controlHeight
    implicitWidth: 150
    leftPadding: Theme.spaceM
    rightPadding: 26
    textRole: "text"
    valueRole: "value"
    model: options
    opacity: enabled ? 1 : Theme.disabledOpacity
    // New options and a choice move the index by themselves; what is chosen is for the owner to say.
    onOptionIndexChanged: currentIndex = optionIndex
    onModelChanged: currentIndex = optionIndex
    onActivated: index => {
        const chosen = valueAt(index)
        currentIndex = optionIndex
        selected(chosen)
    }

    contentItem: Text {
        text: root.displayText
        textFormat: Text.PlainText
        font: root.font
        color: Theme.text
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }

    indicator: Chevron {
        x: root.width - width - Theme.spaceM - 1
        y: (root.height - height) / 2
        color: Theme.mutedText
    }

    background: Rectangle {
        radius: Theme.radius
        color: root.down ? Theme.raisedPressed : root.hovered ? Theme.raisedHovered : Theme.raised
        border.width: root.visualFocus || root.listShown ? Theme.focusWidth : 1
        border.color: root.visualFocus || root.listShown ? Theme.accent : Theme.outline
    }

    delegate: T.ItemDelegate {
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
            textFormat: Text.PlainText
            color: option.highlighted ? Theme.accentText : Theme.text
            font.pixelSize: Theme.fontBody
            font.weight: root.currentIndex === option.index ? Font.DemiBold : Font.Normal
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
        }

        background: Rectangle {
            radius: Theme.radius - 1
            color: option.highlighted ? Theme.accent : "transparent"
        }
    }

    popup: T.Popup {
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
            T.ScrollBar.vertical: ZmScrollBar {}
        }

        background: PopupSurface {}
    }
}
