import QtQuick.Controls

Action {
    required property var settings

    text: qsTr("&Limit Canvas to Document Bounds")
    checkable: true
    checked: settings.canvasClipMode
    onTriggered: settings.canvasClipMode = !settings.canvasClipMode
}
