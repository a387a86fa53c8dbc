import QtQuick
import QtQuick.Controls

// A menu as wide as its widest entry.
Menu {
    id: root

    function widestEntry() {
        let widest = 160
        for (let i = 0; i < count; ++i)
            widest = Math.max(widest, itemAt(i)?.implicitWidth ?? 0)
        return Math.ceil(widest)
    }

    width: widestEntry() + leftPadding + rightPadding
    padding: Theme.spaceS
    overlap: Theme.spaceXS
    margins: Theme.spaceS
    delegate: ZmMenuItem {}
    background: PopupSurface {}
}
