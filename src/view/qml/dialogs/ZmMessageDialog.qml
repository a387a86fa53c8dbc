import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// A sentence or two for the user, under a heading. What else it offers stands below the text and
// brings its distance along.
ZmDialog {
    id: root

    property string message
    property string iconName: "info"
    property color iconColor: Theme.accent
    default property alias extra: extraColumn.data

    width: Math.min(460, room.width - 2 * Theme.spaceXXL)
    topPadding: title ? Theme.spaceS : Theme.spaceXXL
    header: null

    contentItem: RowLayout {
        spacing: Theme.spaceXL

        ZmIcon {
            Layout.alignment: Qt.AlignTop
            Layout.topMargin: root.title ? Theme.spaceXL + Theme.spaceXS : 0
            size: 32
            name: root.iconName
            color: root.iconColor
        }

        ColumnLayout {
            Layout.fillWidth: true
            Layout.topMargin: root.title ? Theme.spaceXL : 0
            spacing: 0

            Label {
                Layout.fillWidth: true
                visible: text
                text: root.title
                font.weight: Font.DemiBold
                font.pixelSize: Theme.fontTitle
                wrapMode: Text.Wrap
                textFormat: Text.PlainText
            }

            Label {
                Layout.fillWidth: true
                Layout.topMargin: root.title ? Theme.spaceM : 0
                Layout.minimumHeight: root.title ? 0 : 32
                verticalAlignment: root.title ? Text.AlignTop : Text.AlignVCenter
                text: root.message
                wrapMode: Text.Wrap
                textFormat: Text.PlainText
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
            }

            Column {
                id: extraColumn

                Layout.fillWidth: true
            }
        }
    }
}
