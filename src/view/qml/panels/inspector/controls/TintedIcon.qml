import QtQuick
import QtQuick.Controls.impl

// An icon of the theme that is no button.
IconLabel {
    property real size: Theme.iconSize
    property string name
    property color tint: Theme.text

    icon.name: name
    icon.width: size
    icon.height: size
    icon.color: tint
}
