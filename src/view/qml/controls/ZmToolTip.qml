import QtQuick
import QtQuick.Templates as T

// Says or shows what its parent is, some time after it is opened, without covering it. See ToolTips.
T.ToolTip {
    id: root

    property string pictureSource   // instead of the text
    property size pictureSize
    property bool beside: false     // of the parent, rather than below

    readonly property real gap: Theme.spaceS

    // Where the window has room for all of it.
    function place() {
        const corner = parent.mapToItem(null, 0, 0)
        const window = parent.Window.window
        const right = parent.width + gap
        const fitsRight = corner.x + right + width + margins <= window.width
        if (beside && (fitsRight || corner.x - gap - width >= margins)) {
            x = fitsRight ? right : -width - gap
            y = (parent.height - height) / 2
            return
        }
        const below = parent.height + gap
        x = (parent.width - width) / 2
        y = corner.y + below + height + margins <= window.height ? below : -height - gap
    }

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    margins: Theme.spaceS + Theme.spaceXS
    padding: Theme.spaceS + 1
    leftPadding: pictureSource ? padding : Theme.spaceM
    rightPadding: leftPadding
    delay: Application.styleHints.mousePressAndHoldInterval
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent
    onAboutToShow: place()
    // A picture may come late.
    onWidthChanged: {
        if (visible)
            place()
    }
    onHeightChanged: {
        if (visible)
            place()
    }

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
