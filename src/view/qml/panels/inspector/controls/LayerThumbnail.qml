import QtQuick

// The look of a layer on a checkerboard that is as large as the picture in the box.
Item {
    id: root

    property url source
    property int checkerSize: 4
    // The look before stays until the new one is there. Not for rows, which come to show another layer.
    property bool keepsWhileLoading: false

    Checkerboard {
        anchors.centerIn: parent
        width: picture.paintedWidth
        height: picture.paintedHeight
        cell: root.checkerSize
        visible: picture.status === Image.Ready
    }

    Image {
        id: picture

        anchors.fill: parent
        source: root.source
        sourceSize: Qt.size(root.width, root.height)
        fillMode: Image.PreserveAspectFit
        asynchronous: true
        retainWhileLoading: root.keepsWhileLoading
        cache: false    // every look has an address of its own
    }

    Rectangle {
        anchors.centerIn: parent
        width: picture.paintedWidth
        height: picture.paintedHeight
        color: "transparent"
        border.color: Theme.outline
        visible: picture.status === Image.Ready
    }
}
