import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// All that is told of one part of the program: its licence, where it comes from, and its notice.
Rectangle {
    id: root

    property NoticeList.Notice notice: null

    radius: Theme.radius
    color: Theme.sunken
    border.width: area.activeFocus ? Theme.focusWidth : 1
    border.color: area.activeFocus ? Theme.accent : Theme.hairline
    onNoticeChanged: area.contentY = 0

    Flickable {
        id: area

        anchors.fill: parent
        anchors.margins: Theme.spaceXS
        clip: true
        activeFocusOnTab: true
        contentHeight: column.height
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.StaticText
        Accessible.name: root.notice?.text ?? ""
        Accessible.focusable: true
        ScrollBar.vertical: ZmScrollBar {}
        Keys.onUpPressed: contentY = Math.max(0, contentY - 40)
        Keys.onDownPressed: contentY = Math.max(0, Math.min(contentHeight - height, contentY + 40))

        ColumnLayout {
            id: column

            width: area.width
            spacing: Theme.spaceS

            Label {
                Layout.fillWidth: true
                Layout.margins: Theme.spaceL
                Layout.bottomMargin: 0
                text: root.notice?.licenseName ?? ""
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                textFormat: Text.PlainText
            }

            ZmLink {
                Layout.leftMargin: Theme.spaceL
                visible: text
                text: root.notice?.homePage.toString() ?? ""
                onClicked: Qt.openUrlExternally(root.notice.homePage)
            }

            Label {
                Layout.fillWidth: true
                Layout.margins: Theme.spaceL
                Layout.topMargin: Theme.spaceS
                text: root.notice?.text ?? ""
                color: Theme.mutedText
                font.pixelSize: Theme.fontSmall + 1
                lineHeight: 1.15
                wrapMode: Text.Wrap
                textFormat: Text.PlainText
            }
        }
    }
}
