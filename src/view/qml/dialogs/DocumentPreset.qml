import QtQml

// A size that a new document may have, in document units.
QtObject {
    required property string group
    required property string name
    required property int width
    required property int height
}
