// A button at the foot of a dialog.
ZmButton {
    implicitWidth: Math.max(84, implicitContentWidth + leftPadding + rightPadding)
}
