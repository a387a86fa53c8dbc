import QtQuick
import QtQuick.Layouts
import QtQuick.Controls

// The program's name, version and makers, and the licences of what it is made of.
ZmDialog {
    id: root

    required property ApplicationInfoController applicationInfoController
    required property NoticeCatalogModel noticeCatalogModel
    property url webSite

    width: Math.min(780, room.width - 2 * Theme.spaceXXL)
    height: Math.min(540, room.height - 2 * Theme.spaceL)
    topPadding: Theme.spaceXXL
    defaultButton: closeButton
    onAboutToShow: {
        notices.currentIndex = 0
        logFailure.visible = false
    }
    onOpened: closeButton.forceActiveFocus()

    contentItem: ColumnLayout {
        spacing: Theme.spaceXL

        RowLayout {
            spacing: Theme.spaceXL

            Image {
                Layout.preferredWidth: 72
                Layout.preferredHeight: 72
                source: "qrc:/zelmoraatelier/assets/app-icon.png"
                sourceSize: Qt.size(72 * Screen.devicePixelRatio, 72 * Screen.devicePixelRatio)
                mipmap: true
                Accessible.ignored: true
            }

            ColumnLayout {
                Layout.fillWidth: true
                spacing: Theme.spaceXS

                Label {
                    text: Application.displayName
                    font.pixelSize: Theme.fontDisplay
                    font.weight: Font.DemiBold
                }

                Label {
                    text: qsTr("Version %1").arg(root.applicationInfoController.version)
                    color: Theme.mutedText
                }

                Label {
                    text: root.applicationInfoController.copyrightNotice
                    color: Theme.mutedText
                    textFormat: Text.PlainText
                }
            }
        }

        ColumnLayout {
            spacing: Theme.spaceM

            Label {
                text: qsTr("Licenses")
                font.weight: Font.DemiBold
            }

            RowLayout {
                spacing: Theme.spaceL

                NoticeList {
                    id: notices

                    Layout.preferredWidth: 188
                    Layout.fillHeight: true
                    model: root.noticeCatalogModel
                }

                NoticeView {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    notice: notices.currentItem
                }
            }
        }

        Label {
            id: logFailure

            Layout.fillWidth: true
            visible: false
            text: qsTr("There is no file manager that shows the log folder.")
            color: Theme.danger
            wrapMode: Text.Wrap
        }
    }

    footer: Item {
        implicitHeight: buttons.implicitHeight

        RowLayout {
            id: buttons

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: root.leftPadding
            anchors.rightMargin: root.rightPadding
            spacing: Theme.spaceM

            ZmLink {
                Layout.bottomMargin: closeButton.Layout.bottomMargin
                Layout.rightMargin: Theme.spaceM
                visible: root.webSite.toString()
                text: qsTr("Web site")
                onClicked: Qt.openUrlExternally(root.webSite)
            }

            Item { Layout.fillWidth: true }

            ZmDialogButton {
                Layout.bottomMargin: closeButton.Layout.bottomMargin
                text: qsTr("Open Log Folder")
                onClicked: logFailure.visible = !root.applicationInfoController.openLogFolder()
            }

            ZmDialogButton {
                id: closeButton

                Layout.bottomMargin: Theme.spaceXL + Theme.spaceXS
                text: qsTr("Close")
                highlighted: true
                onClicked: root.close()
            }
        }
    }
}
