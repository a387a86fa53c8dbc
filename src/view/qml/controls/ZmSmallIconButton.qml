// An icon button for rows, titles and fields.
ZmIconButton {
    size: 26
    icon.width: Theme.iconSize
    icon.height: Theme.iconSize
}
