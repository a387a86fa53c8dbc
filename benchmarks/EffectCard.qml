import QtQuick
import QtQuick.Layouts
import ZelmoraAtelier

// What the card of an effect with many controls is made of.
ColumnLayout {
    width: 276

    Repeater {
        model: 8

        InspectorRow {
            id: row

            required property int index

            label: "Strength"

            ZmSlider {
                Layout.fillWidth: true
                to: 100
                value: 12.5 * row.index
                Accessible.name: row.label
            }

            NumericInput {
                Layout.preferredWidth: 64
                to: 100
                decimals: 1
                value: 12.5 * row.index
                unit: "%"
                Accessible.name: row.label
            }
        }
    }

    InspectorRow {
        label: "Style"

        ZmSelectBox {
            Layout.fillWidth: true
            options: [
                { text: "Soft", value: "soft" },
                { text: "Hard", value: "hard" },
                { text: "Rough", value: "rough" }
            ]
            value: "hard"
            Accessible.name: "Style"
        }
    }

    InspectorRow {
        label: "Color"

        ColorPickerButton {
            Layout.fillWidth: true
            currentColor: "teal"
        }
    }

    Row {
        Layout.alignment: Qt.AlignRight

        Repeater {
            model: ["visibility_on", "swap", "close"]

            ZmSmallIconButton {
                required property string modelData

                icon.name: modelData
                toolTip: modelData
            }
        }
    }
}
