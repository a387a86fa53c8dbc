import QtQuick
import QtQuick.Templates as T

// Says or shows what its parent is, some time after it is opened, without covering it. See ToolTips.
T.ToolTip {
    id: root

    property string pictureSource   // instead of the text
    property size pictureSize
    property bool beside: false     // of the parent, rather than below

    readonly property real gap: Theme.spaceS
    readonly property real parentWidth: parent?.width ?? 0
    readonly property real parentHeight: parent?.height ?? 0

    // Where the window ends, Qt flips it to the other side.
    x: beside ? parentWidth + gap : (parentWidth - width) / 2
    y: beside ? (parentHeight - height) / 2 : parentHeight + gap
    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    margins: Theme.spaceS + Theme.spaceXS
    padding: Theme.spaceS + 1
    leftPadding: pictureSource ? padding : Theme.spaceM
    rightPadding: leftPadding
    delay: Application.styleHints.mousePressAndHoldInterval
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent

    contentItem: Item {
        implicitWidth: root.pictureSource ? picture.paintedWidth : label.implicitWidth
        implicitHeight: root.pictureSource ? picture.paintedHeight : label.implicitHeight

        Text {
            id: label

            anchors.fill: parent
            visible: !root.pictureSource
            text: root.text
            textFormat: Text.PlainText
            font: root.font
            color: Theme.text
            wrapMode: Text.Wrap
        }

        Image {
            id: picture

            anchors.centerIn: parent
            width: root.pictureSize.width
            height: root.pictureSize.height
            source: root.pictureSource
            sourceSize: root.pictureSize
            fillMode: Image.PreserveAspectFit
            asynchronous: true
        }
    }

    background: PopupSurface {
        color: root.pictureSource ? (Theme.dark ? Theme.raised : Theme.palette.base) : Theme.raised
    }
}
