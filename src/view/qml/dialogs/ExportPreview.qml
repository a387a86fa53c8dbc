pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// Shows how the exported picture will look, at any zoom. Fits the view until it is zoomed. Only a picture of moderate
// size is held; what lies in view at a greater zoom comes as tiles, so that no frame has to wait for a large picture.
ColumnLayout {
    id: root

    property url source                 // a new address for every picture
    property size sourcePictureSize     // pixels of the picture, valid when `source` changes
    property bool transparent: false
    property bool busy: false
    property string error

    readonly property real minimumZoom: 0.01
    readonly property real maximumZoom: 8
    readonly property real zoomStep: 1.25
    readonly property int overviewSide: 1600
    readonly property int tileSide: 1024

    readonly property real zoom: fitted ? fitZoom : wantedZoom      // 1: a pixel of the picture to a unit of the window
    readonly property real fitZoom: limited(Math.min(1, (view.width - 2 * Theme.spaceL) / pictureSize.width,
                                                     (view.height - 2 * Theme.spaceL) / pictureSize.height))
    property bool fitted: true
    property real wantedZoom: 1
    property size pictureSize: Qt.size(1, 1)    // of the picture that shows
    property size loadingSize: Qt.size(1, 1)
    property point center: Qt.point(0.5, 0.5)   // what lies in the middle of the view, 0..1 of the picture
    property url shownSource                    // of the picture that shows
    readonly property bool hasPicture: shownSource.toString()
    readonly property string progressText: busy ? qsTr("Encoding preview…")
                                                : overview.status === Image.Loading ? qsTr("Loading preview…") : ""

    function limited(value) {
        return Math.max(minimumZoom, Math.min(maximumZoom, value))
    }

    function fit() {
        fitted = true
        center = Qt.point(0.5, 0.5)
    }

    // Keeps what lies under the point of the view where it is.
    function zoomTo(value, x, y) {
        const before = zoom
        const after = limited(value)
        fitted = false
        wantedZoom = after
        const shift = 1 / before - 1 / after
        moveTo(center.x + (x - view.width / 2) * shift / pictureSize.width,
               center.y + (y - view.height / 2) * shift / pictureSize.height)
    }

    function zoomBy(factor) {
        zoomTo(zoom * factor, view.width / 2, view.height / 2)
    }

    // In units of the window.
    function pan(dx, dy) {
        moveTo(center.x - dx / (pictureSize.width * zoom), center.y - dy / (pictureSize.height * zoom))
    }

    function moveTo(x, y) {
        center = Qt.point(kept(x, view.width / (pictureSize.width * zoom)),
                          kept(y, view.height / (pictureSize.height * zoom)))
    }

    // No further than to the edges of the picture, and in the middle of what shows all of it.
    function kept(position, shownPart) {
        return shownPart >= 1 ? 0.5 : Math.max(shownPart / 2, Math.min(1 - shownPart / 2, position))
    }

    function tileParts(size) {
        const parts = []
        for (let y = 0; y < size.height; y += tileSide) {
            for (let x = 0; x < size.width; x += tileSide)
                parts.push(Qt.rect(x, y, Math.min(tileSide, size.width - x), Math.min(tileSide, size.height - y)))
        }
        return parts
    }

    spacing: Theme.spaceS
    onSourceChanged: {
        if (source.toString()) {
            loadingSize = sourcePictureSize
            const shrink = Math.min(1, overviewSide / Math.max(loadingSize.width, loadingSize.height))
            overview.pixelWidth = Math.max(1, Math.round(loadingSize.width * shrink))
            const ratio = Screen.devicePixelRatio       // by which the image multiplies what it asks for
            overview.sourceSize = shrink < 1 ? Qt.size(overview.pixelWidth / ratio,
                                                       Math.max(1, Math.round(loadingSize.height * shrink)) / ratio)
                                             : undefined
        } else {
            shownSource = ""
            fit()
        }
        overview.source = source
    }

    FocusScope {
        id: view

        Layout.fillWidth: true
        Layout.fillHeight: true
        activeFocusOnTab: true
        Accessible.role: Accessible.Graphic
        Accessible.name: qsTr("Preview")
        Accessible.focusable: true
        Keys.onPressed: event => {
            const step = 40
            switch (event.key) {
            case Qt.Key_Left: root.pan(step, 0); break
            case Qt.Key_Right: root.pan(-step, 0); break
            case Qt.Key_Up: root.pan(0, step); break
            case Qt.Key_Down: root.pan(0, -step); break
            case Qt.Key_Plus: case Qt.Key_Equal: root.zoomBy(root.zoomStep); break
            case Qt.Key_Minus: root.zoomBy(1 / root.zoomStep); break
            case Qt.Key_0: root.fit(); break
            case Qt.Key_1: root.zoomTo(1, width / 2, height / 2); break
            default: return
            }
            event.accepted = true
        }

        Rectangle {
            anchors.fill: parent
            radius: Theme.radius
            color: Theme.dark ? Qt.darker(Theme.sunken, 1.15) : "#e2e3e5"
        }

        Item {
            id: clipped

            anchors.fill: parent
            anchors.margins: 1
            clip: true

            Item {
                id: picture

                readonly property real tileZoom: root.zoom * Screen.devicePixelRatio
                readonly property bool tiled: root.hasPicture && overview.pixelWidth < root.pictureSize.width
                                              && tileZoom * root.pictureSize.width > overview.pixelWidth

                x: Math.round(view.width / 2 - root.center.x * width) - clipped.x
                y: Math.round(view.height / 2 - root.center.y * height) - clipped.y
                width: root.pictureSize.width * root.zoom
                height: root.pictureSize.height * root.zoom
                visible: root.hasPicture && !root.error

                Checkerboard {
                    anchors.fill: parent
                    visible: root.transparent
                }

                Image {
                    id: overview

                    property int pixelWidth: 0

                    anchors.fill: parent
                    asynchronous: true
                    retainWhileLoading: true
                    cache: false
                    mipmap: true
                    smooth: root.zoom < 2
                    onStatusChanged: {
                        if (status !== Image.Ready)
                            return
                        root.pictureSize = root.loadingSize
                        root.shownSource = source
                        root.moveTo(root.center.x, root.center.y)
                    }
                }

                Repeater {
                    model: picture.tiled ? root.tileParts(root.pictureSize) : []

                    ExportPreviewTile {
                        required property rect modelData

                        part: modelData
                        source: root.shownSource
                        zoom: root.zoom
                        transparent: root.transparent
                        view: Qt.rect(-picture.x, -picture.y, clipped.width, clipped.height)
                    }
                }
            }
        }

        Rectangle {
            anchors.fill: parent
            radius: Theme.radius
            color: "transparent"
            border.width: view.activeFocus ? Theme.focusWidth : 1
            border.color: view.activeFocus ? Theme.accent : Theme.outline
        }

        MouseArea {
            property point last

            anchors.fill: parent
            cursorShape: pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor
            onPressed: mouse => {
                last = Qt.point(mouse.x, mouse.y)
                view.forceActiveFocus(Qt.MouseFocusReason)
            }
            onPositionChanged: mouse => {
                root.pan(mouse.x - last.x, mouse.y - last.y)
                last = Qt.point(mouse.x, mouse.y)
            }
            onDoubleClicked: mouse => root.fitted ? root.zoomTo(1, mouse.x, mouse.y) : root.fit()
            onWheel: wheel => root.zoomTo(root.zoom * Math.pow(root.zoomStep, wheel.angleDelta.y / 120),
                                          wheel.x, wheel.y)
        }

        Label {
            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width - 2 * Theme.spaceXXL)
            visible: text
            text: root.error
            color: Theme.danger
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            y: root.hasPicture ? parent.height - height - Theme.spaceL : (parent.height - height) / 2
            width: progressRow.width + 2 * Theme.spaceL
            height: Theme.controlHeight + Theme.spaceS
            radius: height / 2
            color: Theme.surface
            border.color: Theme.outline
            visible: ring.shown && root.progressText

            Row {
                id: progressRow

                anchors.centerIn: parent
                spacing: Theme.spaceM

                BusyRing {
                    id: ring

                    width: 16
                    height: 16
                    strokeWidth: 2
                    running: root.progressText
                }

                Label {
                    text: root.progressText
                }
            }
        }
    }

    RowLayout {
        spacing: Theme.spaceXS

        ZmSmallIconButton {
            size: Theme.controlHeight
            icon.name: "zoom_out"
            toolTip: qsTr("Zoom out")
            enabled: root.zoom > root.minimumZoom
            onClicked: root.zoomBy(1 / root.zoomStep)
        }

        Label {
            Layout.preferredWidth: 46
            horizontalAlignment: Text.AlignHCenter
            text: !root.hasPicture ? "" : qsTr("%1 %").arg(root.zoom < 0.1 ? Math.round(root.zoom * 1000) / 10
                                                                           : Math.round(root.zoom * 100))
            color: Theme.mutedText
        }

        ZmSmallIconButton {
            size: Theme.controlHeight
            icon.name: "zoom_in"
            toolTip: qsTr("Zoom in")
            enabled: root.zoom < root.maximumZoom
            onClicked: root.zoomBy(root.zoomStep)
        }

        ZmToolSeparator {
            implicitHeight: Theme.controlHeight
        }

        ZmToolButton {
            text: qsTr("Fit")
            toolTip: qsTr("Show the whole picture")
            checked: root.fitted
            onClicked: root.fit()
        }

        ZmToolButton {
            text: qsTr("100 %")
            toolTip: qsTr("Show the picture in its own size")
            checked: !root.fitted && root.zoom === 1
            onClicked: root.zoomTo(1, view.width / 2, view.height / 2)
        }

        Label {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignRight
            visible: root.hasPicture
            text: qsTr("%1 × %2 px").arg(root.pictureSize.width).arg(root.pictureSize.height)
            color: Theme.mutedText
            elide: Text.ElideRight
        }
    }
}
