import QtQuick

// A part of the export preview, loaded while it lies in view and in as many pixels as the zoom can show.
Item {
    id: root

    required property rect part         // pixels of the picture
    required property url source
    required property real zoom
    required property bool transparent
    required property rect view         // what is in view, in units of the parent

    // A power of two, so that few steps of the zoom load anew.
    readonly property real detail: Math.min(1, Math.pow(2, Math.ceil(Math.log2(zoom * Screen.devicePixelRatio))))
    readonly property bool inView: x < view.x + view.width && x + width > view.x
                                   && y < view.y + view.height && y + height > view.y

    x: part.x * zoom
    y: part.y * zoom
    width: part.width * zoom
    height: part.height * zoom
    // A tile of the picture before stays until the new one is there.
    visible: inView && (pixels.status === Image.Ready || pixels.implicitWidth > 0)
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
        retainWhileLoading: true
        cache: false
        smooth: root.zoom < 2
        // Of a reduced tile; the image multiplies it by the ratio of the screen.
        sourceSize: root.detail < 1 ? Qt.size(Math.ceil(root.part.width * root.detail) / Screen.devicePixelRatio,
                                              Math.ceil(root.part.height * root.detail) / Screen.devicePixelRatio)
                                    : undefined
        source: root.inView && root.source.toString()
                ? "%1/%2,%3,%4,%5".arg(root.source.toString()).arg(root.part.x).arg(root.part.y).arg(root.part.width)
                                  .arg(root.part.height) : ""
    }
}
