import QtQuick

// Offers the shapes and stickers and inserts the one that is picked.
PickerDialog {
    id: root

    required property var shapeModel
    required property var controller

    pickerTitle: qsTr("Insert Shape or Sticker")
    searchPlaceholderText: qsTr("Search shapes and stickers")
    categoryEmptyText: qsTr("No matching shapes or stickers.")
    activateText: qsTr("Insert")
    sourceCategoryGroups: visible ? shapeModel.categoryGroups : null
    onCategoryItemActivated: item => {
        const added = item.itemKind === "sticker" ? controller.addSticker(item.generatorId)
                                                  : controller.addShape(item.generatorId)
        if (added)
            accept()
    }
}
