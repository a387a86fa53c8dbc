import QtQuick.Controls

// A square tool button that shows only its icon.
ZmToolButton {
    property real size: Theme.toolButtonSize

    implicitWidth: size
    implicitHeight: size
    padding: 0
    leftPadding: 0
    rightPadding: 0
    display: AbstractButton.IconOnly
}
