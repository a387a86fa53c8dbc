import QtQuick
import QtQuick.Controls.impl

// An icon of the theme that is no button.
IconLabel {
    id: root

    property real size: Theme.iconSize
    property string name

    icon.name: name
    icon.width: size
    icon.height: size
    icon.color: color
    color: Theme.text
}
