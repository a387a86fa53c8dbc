import QtQuick.Controls

// An action of the window, which menus, bars and keys share.
Action {
    // What a tool tip says; empty for the text.
    property string toolTip
    // A single key that triggers the action while the canvas has the focus. No shortcut: typing must not trigger it.
    property string toolKey
    readonly property string plainText: Theme.withoutMnemonic(text)
}
