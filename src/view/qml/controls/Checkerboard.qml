import QtQuick

// What lies behind transparent pixels.
Image {
    property int cell: 8
    property bool shown: true   // the picture is not loaded otherwise

    visible: shown
    fillMode: Image.Tile
    smooth: false
    sourceSize: Qt.size(2 * cell, 2 * cell)
    source: shown ? "data:image/svg+xml;utf8,<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 2 2'>"
                    + "<rect width='2' height='2' fill='%23f4f4f4'/><path d='M0 0h1v2h1v-1h-2z' fill='%23d2d2d2'/></svg>"
                  : ""
}
