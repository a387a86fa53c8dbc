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
    padding: 4
    overlap: 2
    delegate: ZmMenuItem {}

    background: Rectangle {
        radius: 5
        color: root.palette.base
        border.color: root.palette.mid
    }
}
