import QtQuick.Controls
import ZelmoraAtelier

// An action of the window, which menus, bars and keys share.
Action {
    // What a tool tip says; empty for the text.
    property string toolTip
    // A single key that triggers the action while the canvas has the focus. No shortcut: typing must not trigger it.
    property string toolKey
    // Further keys, which something else than the action answers.
    property string alsoKeys
    // All of them, as a menu shows them.
    readonly property string keys: [toolKey || KeySpelling.spelled(shortcut), KeySpelling.spelled(alsoKeys)]
                                   .filter(spelled => spelled).join(", ")
    readonly property string plainText: Theme.withoutMnemonic(text)
}
