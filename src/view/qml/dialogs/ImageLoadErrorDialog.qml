import QtQuick
import QtQuick.Controls

// Tells why a picture or a document could not be opened, and where to get what was missing.
ZmMessageDialog {
    id: root

    property bool showHeifInstallHelp: false
    readonly property string platform: Qt.platform.os
    readonly property string heifImageExtensionsId: "9PMMSR1CGPWG"
    readonly property string hevcVideoExtensionsId: "9NMZLZ57R3T7"

    function openStorePage(productId) {
        Qt.openUrlExternally("ms-windows-store://pdp/?ProductId=" + productId)
    }

    iconName: "warning"
    iconColor: Theme.danger
    defaultButton: okButton
    onOpened: okButton.forceActiveFocus()

    footer: ZmDialogButtons {
        dialog: root

        ZmDialogButton {
            id: okButton

            text: qsTr("OK")
            highlighted: true
            DialogButtonBox.buttonRole: DialogButtonBox.AcceptRole
        }
    }

    Binding on title {
        value: qsTr("HEIC/HEIF Support Is Unavailable")
        when: root.showHeifInstallHelp
    }

    Label {
        width: parent.width
        visible: root.showHeifInstallHelp && root.platform !== "windows"
        topPadding: Theme.spaceM
        text: qsTr("Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.")
        wrapMode: Text.Wrap
        textFormat: Text.PlainText
    }

    Flow {
        width: parent.width
        visible: root.showHeifInstallHelp && root.platform === "windows"
        topPadding: Theme.spaceL
        spacing: Theme.spaceM

        ZmButton {
            text: qsTr("HEIF Image Extensions")
            onClicked: root.openStorePage(root.heifImageExtensionsId)
        }

        ZmButton {
            text: qsTr("HEVC Video Extensions")
            onClicked: root.openStorePage(root.hevcVideoExtensionsId)
        }
    }
}
