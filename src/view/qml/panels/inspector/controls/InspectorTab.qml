import QtQuick

// One tab of the inspector and the panel behind it. The panel is made when the tab is first shown.
QtObject {
    required property int panelIndex
    required property Component panel
    property string text
    property string iconName
    // A tool's tab is there while its tool runs.
    property bool available: true
}
