import QtQuick.Controls

Action {
    required property var settings

    text: qsTr("Show Document &Bounds")
    checkable: true
    checked: settings.documentBoundsVisible
    onTriggered: settings.documentBoundsVisible = !settings.documentBoundsVisible
}
