pragma ComponentBehavior: Bound

import QtQuick

// Everything that the window can be asked for, declared once for menus, bars and keys.
Item {
    id: root

    required property ActionContext context

    readonly property FileActions file: FileActions { context: root.context }
    readonly property EditActions edit: EditActions { context: root.context }
    readonly property LayerActions layers: LayerActions { context: root.context }
    readonly property ToolModeActions tools: ToolModeActions { context: root.context }
    readonly property SelectionActions selection: SelectionActions { context: root.context }
    readonly property ViewActions view: ViewActions { context: root.context }
    readonly property HelpActions help: HelpActions { context: root.context }

    // Delete cuts: what goes stays on the clipboard.
    Shortcut {
        sequence: "Delete"
        enabled: root.edit.cut.enabled && root.context.canvas.activeFocus && !root.tools.pathEdit.active
                 && !root.context.editorState.relightActive
        onActivated: root.edit.cut.trigger()
    }

    // The single keys of tools, which work while the canvas has the focus and nobody types.
    Instantiator {
        model: [root.tools.selection, root.tools.draw, root.tools.eraser, root.tools.cloneStamp,
                root.tools.exposureBrush, root.tools.pathEdit, root.tools.crop, root.tools.skew,
                root.selection.rectangle, root.selection.ellipse, root.selection.magicWand, root.selection.polygon,
                root.tools.fillSelection, root.layers.addText, root.layers.addShape]
        delegate: Shortcut {
            required property ZmAction modelData

            sequence: modelData.toolKey
            enabled: root.context.canvas.activeFocus && root.context.editable && modelData.enabled
            onActivated: modelData.trigger()
        }
    }
}
