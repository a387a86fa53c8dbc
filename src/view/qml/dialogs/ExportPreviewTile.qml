import QtQuick

// A part of the export preview in all its pixels, loaded while it lies in view.
Item {
    id: root

    required property rect part         // pixels of the picture; cut at its edges
    required property url source
    required property size pictureSize
    required property real zoom
    required property bool transparent
    required property rect view         // what is in view, in units of the parent

    readonly property real partWidth: Math.min(part.width, pictureSize.width - part.x)
    readonly property real partHeight: Math.min(part.height, pictureSize.height - part.y)
    readonly property bool inView: x < view.x + view.width && x + width > view.x
                                   && y < view.y + view.height && y + height > view.y

    x: part.x * zoom
    y: part.y * zoom
    width: partWidth * zoom
    height: partHeight * zoom
    visible: inView && pixels.status === Image.Ready
    clip: transparent

    // Hides what lies below, in step with the checks around it.
    Checkerboard {
        x: -(root.x % (2 * cell))
        y: -(root.y % (2 * cell))
        width: root.width + 2 * cell
        height: root.height + 2 * cell
        visible: root.transparent
    }

    Image {
        id: pixels

        anchors.fill: parent
        asynchronous: true
        cache: false
        mipmap: root.zoom < 1
        smooth: root.zoom < 2
        source: root.inView && root.source.toString()
                ? "%1/%2,%3,%4,%5".arg(root.source.toString()).arg(root.part.x).arg(root.part.y).arg(root.partWidth)
                                  .arg(root.partHeight) : ""
    }
}
