import QtQuick
import ZelmoraAtelier

// Which row of the list of layers is the selected one, -1 for none, its kind and its picture. The model is searched only
// when it says that this has changed.
QtObject {
    id: root

    required property SceneLayerListModel model
    property int row: -1
    property string layerType
    property string thumbnailSource

    function refresh() {
        const found = model.match(model.index(0, 0), SceneLayerListModel.SelectedRole, true, 1, Qt.MatchExactly)
        row = found.length > 0 ? found[0].row : -1
        layerType = row < 0 ? "" : model.data(found[0], SceneLayerListModel.LayerTypeRole)
        thumbnailSource = row < 0 ? "" : model.data(found[0], SceneLayerListModel.ThumbnailSourceRole) ?? ""
    }

    property Connections changes: Connections {
        target: root.model

        function onDataChanged(topLeft, bottomRight, roles) {
            const ownThumbnail = roles.includes(SceneLayerListModel.ThumbnailSourceRole)
                    && topLeft.row <= root.row && root.row <= bottomRight.row
            if (ownThumbnail || roles.includes(SceneLayerListModel.SelectedRole))
                root.refresh()
        }

        function onRowsInserted() {
            root.refresh()
        }

        function onRowsRemoved() {
            root.refresh()
        }

        function onRowsMoved() {
            root.refresh()
        }

        function onModelReset() {
            root.refresh()
        }
    }

    Component.onCompleted: refresh()
}
