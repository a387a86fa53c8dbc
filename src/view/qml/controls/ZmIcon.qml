import QtQuick
import QtQuick.Controls.impl

// An icon of the theme in one colour, where it is no button.
IconImage {
    property int size: Theme.iconSize

    width: size
    height: size
    sourceSize: Qt.size(size, size)
    color: Theme.text
    Accessible.ignored: true
}
