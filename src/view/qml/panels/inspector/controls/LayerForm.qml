import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import ZelmoraAtelier

// Name, opacity and blend mode of the selected layer.
ColumnLayout {
    id: root

    required property SceneObjectAdapter sceneObjectAdapter

    spacing: Theme.spaceS + Theme.spaceXS

    InspectorRow {
        label: qsTr("Name")

        ZmTextField {
            id: nameField

            function commit() {
                if (text.trim() && text !== root.sceneObjectAdapter.name)
                    root.sceneObjectAdapter.name = text
                reset()
            }

            function reset() {
                text = root.sceneObjectAdapter.name
                cursorPosition = 0
            }

            Layout.fillWidth: true
            Accessible.name: qsTr("Name")
            onAccepted: {
                commit()
                selectAll()
            }
            onActiveFocusChanged: activeFocus ? selectAll() : commit()
            Keys.onEscapePressed: event => {
                event.accepted = text !== root.sceneObjectAdapter.name
                reset()
                selectAll()
            }
            Component.onCompleted: reset()

            // What was typed for one layer must not name another.
            Connections {
                target: root.sceneObjectAdapter

                function onNameChanged() {
                    nameField.reset()
                }
            }
        }
    }

    InspectorRow {
        label: qsTr("Opacity")

        ZmSlider {
            Layout.fillWidth: true
            value: root.sceneObjectAdapter.opacity
            stepSize: 0.01
            Accessible.name: qsTr("Opacity")
            onEditStarted: root.sceneObjectAdapter.beginInspectorEdit()
            onEditFinished: root.sceneObjectAdapter.endInspectorEdit()
            onMoved: root.sceneObjectAdapter.opacity = Math.round(value * 100) / 100
        }

        Label {
            Layout.preferredWidth: percent.width
            horizontalAlignment: Text.AlignRight
            color: Theme.text
            text: qsTr("%1%").arg(Math.round(root.sceneObjectAdapter.opacity * 100))

            TextMetrics {
                id: percent

                font: Application.font
                text: qsTr("%1%").arg(100)
            }
        }
    }

    InspectorRow {
        label: qsTr("Blend Mode")

        ZmSelectBox {
            Layout.fillWidth: true
            options: root.sceneObjectAdapter.blendModeOptions
            value: root.sceneObjectAdapter.blendMode
            Accessible.name: qsTr("Blend mode")
            onSelected: value => root.sceneObjectAdapter.blendMode = value
        }
    }
}
