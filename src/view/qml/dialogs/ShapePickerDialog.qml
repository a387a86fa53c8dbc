import QtQuick

// Offers the shapes and stickers and inserts the one that is picked.
PickerDialog {
    id: root

    required property ShapePickerModel shapeModel
    required property EditorController controller

    pickerTitle: qsTr("Insert Shape or Sticker")
    searchPlaceholderText: qsTr("Search shapes and stickers")
    categoryEmptyText: qsTr("No matching shapes or stickers.")
    activateText: qsTr("Insert")
    categoryPreviewGround: Theme.dark ? "#c3c9d2" : "#e4e8ee"     // sets off dark shapes and white ones
    sourceCategoryGroups: visible ? shapeModel.categoryGroups : null
    onCategoryItemActivated: item => {
        const added = item.itemKind === "sticker" ? controller.addSticker(item.generatorId)
                                                  : controller.addShape(item.generatorId)
        if (added)
            accept()
    }
}
