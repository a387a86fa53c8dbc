import QtQuick.Templates as T

// A square tool button that shows only its icon.
ZmToolButton {
    property real size: Theme.toolButtonSize

    implicitWidth: size
    implicitHeight: size
    leftPadding: 0
    rightPadding: 0
    display: T.AbstractButton.IconOnly
}
