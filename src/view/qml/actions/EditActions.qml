import QtQuick

// The history and the clipboard.
QtObject {
    id: root

    required property ActionContext context
    readonly property CommandHistory history: context.history
    readonly property var clipboard: context.clipboard     // see ActionContext

    readonly property ZmAction undo: ZmAction {
        text: qsTr("&Undo")
        toolTip: root.history.undoText ? qsTr("Undo %1").arg(root.history.undoText) : qsTr("Undo")
        shortcut: StandardKey.Undo
        icon.name: "undo"
        enabled: root.history.canUndo && root.context.editable
        onTriggered: root.history.undo()
    }

    readonly property ZmAction redo: ZmAction {
        text: qsTr("&Redo")
        toolTip: root.history.redoText ? qsTr("Redo %1").arg(root.history.redoText) : qsTr("Redo")
        shortcut: StandardKey.Redo
        icon.name: "redo"
        enabled: root.history.canRedo && root.context.editable
        onTriggered: root.history.redo()
    }

    readonly property ZmAction cut: ZmAction {
        text: qsTr("Cu&t")
        shortcut: StandardKey.Cut
        alsoKeys: "Delete"
        icon.name: "cut"
        enabled: (root.clipboard?.canCut ?? false) && root.context.editable
        onTriggered: {
            root.context.commitTextEditing()
            root.context.report(root.clipboard.cutSelection(), root.clipboard)
        }
    }

    readonly property ZmAction copy: ZmAction {
        text: qsTr("&Copy")
        shortcut: StandardKey.Copy
        icon.name: "copy"
        enabled: (root.clipboard?.canCopy ?? false) && root.context.editable
        onTriggered: {
            root.context.commitTextEditing()
            root.context.report(root.clipboard.copySelection(), root.clipboard)
        }
    }

    readonly property ZmAction paste: ZmAction {
        text: qsTr("&Paste")
        shortcut: StandardKey.Paste
        icon.name: "paste"
        enabled: (root.clipboard?.canPaste ?? false) && root.context.editable
        onTriggered: {
            root.context.commitTextEditing()
            root.context.report(root.clipboard.paste(), root.clipboard)
        }
    }
}
