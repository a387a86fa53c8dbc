import QtQuick
import QtQuick.Controls
import ZelmoraAtelier // after QtQuick, which has a Canvas too

// What the action objects work on. Declared once by the window and handed to each of them.
QtObject {
    required property ApplicationWindow window
    required property Canvas canvas
    required property var settings
}
