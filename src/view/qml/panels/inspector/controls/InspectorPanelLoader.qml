import QtQuick

// Makes a panel the first time that it is shown and keeps it, so that its scroll position and its fields survive.
Loader {
    property bool shown: false

    active: false
    visible: shown
    onShownChanged: {
        if (shown)
            active = true
    }
    Component.onCompleted: active = shown
}
