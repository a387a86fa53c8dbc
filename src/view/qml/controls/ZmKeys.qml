import QtQuick

// Spells the keys of an action as the platform does. Never triggers anything.
Shortcut {
    required property var action
    readonly property string spelling: action?.toolKey || nativeText

    sequence: action?.shortcut ?? ""
    enabled: false
}
