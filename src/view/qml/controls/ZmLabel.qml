import QtQuick
import QtQuick.Templates as T

// A plain text that screen readers come to. Lighter than the style's label, which brings a palette for each.
T.Label {
    color: Theme.text
    textFormat: Text.PlainText
}
