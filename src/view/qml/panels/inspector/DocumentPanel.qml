pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import ZelmoraAtelier

// The document itself: its size and its background.
ZmInspectorPanel {
    id: root

    required property DocumentPropertiesAdapter documentPropertiesAdapter

    InspectorSection {
        title: qsTr("Document Size")
        separated: false

        SizeRow {
            label: qsTr("Width")
            value: root.documentPropertiesAdapter.workareaWidth
            onEdited: value => root.documentPropertiesAdapter.workareaWidth = value
        }

        SizeRow {
            label: qsTr("Height")
            value: root.documentPropertiesAdapter.workareaHeight
            onEdited: value => root.documentPropertiesAdapter.workareaHeight = value
        }

        ZmButton {
            Layout.fillWidth: true
            Layout.topMargin: Theme.spaceXS
            text: qsTr("Fit Document to Content")
            icon.name: "fit_to_content"
            onClicked: root.documentPropertiesAdapter.fitWorkareaToContent()
        }
    }

    InspectorSection {
        title: qsTr("Background")

        InspectorRow {
            label: qsTr("Color")

            ColorPickerButton {
                Layout.fillWidth: true
                currentColor: root.documentPropertiesAdapter.backgroundColor
                dialogTitle: qsTr("Choose Document Background Color")
                showAlphaChannel: true
                Accessible.name: qsTr("Background color")
                onColorChanged: (color, reason) =>
                    root.documentPropertiesAdapter.setBackgroundColorFromPicker(color, reason)
            }
        }
    }

    component SizeRow: NumberRow {
        from: 1
        to: 100000
        decimals: 1
        unit: qsTr("px")
        onEditStarted: root.documentPropertiesAdapter.beginInspectorEdit()
        onEditFinished: root.documentPropertiesAdapter.endInspectorEdit()
    }
}
