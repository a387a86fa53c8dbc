pragma ComponentBehavior: Bound

import QtQuick

// The languages of the interface, each by its own name.
ZmMenu {
    id: root

    required property ApplicationSettings settings

    signal languageChosen(string language)

    title: qsTr("Lan&guage")

    Instantiator {
        model: root.settings.availableLanguages
        delegate: ZmMenuItem {
            id: entry

            required property string modelData

            action: ModeAction {
                text: root.settings.languageDisplayName(entry.modelData)
                active: root.settings.language === entry.modelData
                onChosen: root.languageChosen(entry.modelData)
            }
        }
        onObjectAdded: (index, item) => root.insertItem(index, item)
        onObjectRemoved: (index, item) => root.removeItem(item)
    }
}
