import QtQuick
import QtQuick.Controls

// The languages of the interface, each by its own name.
ZmMenu {
    id: root

    required property var settings

    signal languageChosen(string language)

    title: qsTr("Lan&guage")

    Instantiator {
        model: root.settings.availableLanguages
        delegate: ZmMenuItem {
            required property string modelData

            action: ModeAction {
                text: root.settings.languageDisplayName(modelData)
                active: root.settings.language === modelData
                onChosen: root.languageChosen(modelData)
            }
        }
        onObjectAdded: (index, item) => root.insertItem(index, item)
        onObjectRemoved: (index, item) => root.removeItem(item)
    }
}
