import QtQuick
import QtQuick.Layouts

// A titled block of a panel. `tools` stand on the right of the title.
ColumnLayout {
    id: root

    property string title
    property bool separated: true
    property alias tools: toolRow.data

    Layout.fillWidth: true
    spacing: Theme.spaceS + Theme.spaceXS
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Rectangle {
        Layout.fillWidth: true
        implicitHeight: 1
        color: Theme.hairline
        visible: root.separated
    }

    RowLayout {
        Layout.fillWidth: true
        Layout.minimumHeight: 26    // with tools or without
        spacing: 0

        ZmLabel {
            Layout.fillWidth: true
            text: root.title
            font.weight: Font.DemiBold
            elide: Text.ElideRight
        }

        Row {
            id: toolRow

            Layout.rightMargin: -Theme.spaceS     // lines up what the buttons show
        }
    }
}
