pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import ZelmoraAtelier

// Where the selected layer is, how large, and how it is turned and skewed.
ZmInspectorPanel {
    id: root

    required property SceneObjectAdapter sceneObjectAdapter
    // The overlay on the canvas, with the mode in which its handles skew. Null, and so of no type, without one.
    property var overlayModel: null

    // Counted, for the fields: what is typed for one layer must not move another.
    property int selections: 0
    property bool sizeInPercent: false
    property bool keepAspectRatio: true

    function setWidth(value) {
        const adapter = sceneObjectAdapter
        if (sizeInPercent)
            keepAspectRatio ? adapter.setScaleXPreservingAspect(value / 100) : adapter.scaleX = value / 100
        else
            keepAspectRatio ? adapter.setLayerWidthPreservingAspect(value) : adapter.layerWidth = value
    }

    function setHeight(value) {
        const adapter = sceneObjectAdapter
        if (sizeInPercent)
            keepAspectRatio ? adapter.setScaleYPreservingAspect(value / 100) : adapter.scaleY = value / 100
        else
            keepAspectRatio ? adapter.setLayerHeightPreservingAspect(value) : adapter.layerHeight = value
    }

    Connections {
        target: root.sceneObjectAdapter

        function onSelectionChanged() {
            ++root.selections
        }
    }

    InspectorHint {
        visible: !root.sceneObjectAdapter.hasSelection
        text: qsTr("Select a layer to edit its transform.")
    }

    InspectorSection {
        title: qsTr("Geometry")
        separated: false
        visible: root.sceneObjectAdapter.hasSelection

        EditRow {
            label: qsTr("X")
            unit: qsTr("px")
            value: root.sceneObjectAdapter.positionX
            onEdited: value => root.sceneObjectAdapter.positionX = value
        }

        EditRow {
            label: qsTr("Y")
            unit: qsTr("px")
            value: root.sceneObjectAdapter.positionY
            onEdited: value => root.sceneObjectAdapter.positionY = value
        }

        SizeRow {
            label: qsTr("Width")
            value: root.sizeInPercent ? root.sceneObjectAdapter.scaleX * 100 : root.sceneObjectAdapter.layerWidth
            onEdited: value => root.setWidth(value)
        }

        SizeRow {
            label: qsTr("Height")
            value: root.sizeInPercent ? root.sceneObjectAdapter.scaleY * 100 : root.sceneObjectAdapter.layerHeight
            onEdited: value => root.setHeight(value)
        }

        ZmCheckBox {
            Layout.fillWidth: true
            text: qsTr("Keep Aspect Ratio")
            checked: root.keepAspectRatio
            onToggled: root.keepAspectRatio = checked
        }
    }

    InspectorSection {
        title: qsTr("Flip")
        visible: root.sceneObjectAdapter.hasSelection

        GridLayout {
            columns: root.availableWidth < 380 ? 1 : 2
            uniformCellWidths: true
            columnSpacing: Theme.spaceM
            rowSpacing: Theme.spaceS + Theme.spaceXS

            ZmButton {
                Layout.fillWidth: true
                text: qsTr("Flip Horizontally")
                icon.name: "flip_horizontal"
                onClicked: root.sceneObjectAdapter.mirrorHorizontal()
            }

            ZmButton {
                Layout.fillWidth: true
                text: qsTr("Flip Vertically")
                icon.name: "flip_vertical"
                onClicked: root.sceneObjectAdapter.mirrorVertical()
            }
        }
    }

    InspectorSection {
        title: qsTr("Rotation")
        visible: root.sceneObjectAdapter.hasSelection

        EditRow {
            label: qsTr("Angle")
            unit: qsTr("deg")
            from: -3600
            to: 3600
            value: root.sceneObjectAdapter.rotation
            onEdited: value => root.sceneObjectAdapter.rotation = value
        }

        PivotRow {
            label: qsTr("Pivot X")
            value: root.sceneObjectAdapter.pivotX * 100
            onEdited: value => root.sceneObjectAdapter.pivotX = value / 100
        }

        PivotRow {
            label: qsTr("Pivot Y")
            value: root.sceneObjectAdapter.pivotY * 100
            onEdited: value => root.sceneObjectAdapter.pivotY = value / 100
        }
    }

    InspectorSection {
        title: qsTr("Skew")
        visible: root.sceneObjectAdapter.hasSelection
        tools: ZmToolButton {
            text: qsTr("Skew")
            icon.name: "skew"
            icon.width: Theme.iconSize
            icon.height: Theme.iconSize
            toolTip: qsTr("Start skew")
            checkable: true
            checked: root.overlayModel?.skewActive ?? false
            enabled: root.overlayModel
            onToggled: checked ? root.overlayModel.activateSkewMode() : root.overlayModel.activateTransformMode()
        }

        SkewRow {
            label: qsTr("X")
            accessibleName: qsTr("Skew X")
            value: root.sceneObjectAdapter.skewX
            onEdited: value => root.sceneObjectAdapter.skewX = value
        }

        SkewRow {
            label: qsTr("Y")
            accessibleName: qsTr("Skew Y")
            value: root.sceneObjectAdapter.skewY
            onEdited: value => root.sceneObjectAdapter.skewY = value
        }
    }

    component EditRow: NumberRow {
        subject: root.selections
        from: -100000
        to: 100000
        decimals: 1
        onEditStarted: root.sceneObjectAdapter.beginInspectorEdit()
        onEditFinished: root.sceneObjectAdapter.endInspectorEdit()
    }

    // A scale below zero is mirrored.
    component SizeRow: EditRow {
        from: root.sizeInPercent ? -100000 : 1
        unit: root.sizeInPercent ? qsTr("%") : qsTr("px")
        unitToolTip: qsTr("Switch size unit")
        onUnitClicked: root.sizeInPercent = !root.sizeInPercent
    }

    component PivotRow: EditRow {
        from: 0
        to: 100
        unit: qsTr("%")
    }

    component SkewRow: EditRow {
        from: -89
        to: 89
        unit: qsTr("deg")
    }
}
