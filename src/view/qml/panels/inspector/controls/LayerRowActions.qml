import QtQuick
import QtQuick.Controls

// What the window can do with the selected layer.
QtObject {
    required property Action showHide
    required property Action cut
    required property Action copy
    required property Action paste
    required property Action moveUp
    required property Action moveDown
    required property Action rasterize
    required property Action mergeBelow
    required property Action remove
}
