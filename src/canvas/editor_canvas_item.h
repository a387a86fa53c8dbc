#pragma once

#include "scene/scene_presentation_model.h"

#include <QPointer>
#include <QQuickItem>
#include <QRectF>

namespace zm {

/// Shows the tiles of a ScenePresentationModel as textures. The item's (0, 0) is the top left of the model's scene
/// rectangle, and one document unit covers viewScale of the item's units. Without a model it shows nothing.
class EditorCanvasItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(zm::ScenePresentationModel *sceneModel READ sceneModel WRITE setSceneModel NOTIFY sceneModelChanged)
    Q_PROPERTY(double viewScale READ viewScale WRITE setViewScale NOTIFY viewScaleChanged)

public:
    explicit EditorCanvasItem(QQuickItem *parent = nullptr);
    ~EditorCanvasItem() override;

    ScenePresentationModel *sceneModel() const { return m_sceneModel; }
    /// Not owned; may be null, and a model that is destroyed becomes null.
    void setSceneModel(ScenePresentationModel *model);

    double viewScale() const { return m_viewScale; }
    /// Raised to at least 0.01; a value that is not finite becomes 1.
    void setViewScale(double scale);

signals:
    void sceneModelChanged();
    void viewScaleChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;

private:
    void takeTiles();

    QPointer<ScenePresentationModel> m_sceneModel;
    QMetaObject::Connection m_imageConnection;
    QMetaObject::Connection m_destroyedConnection;
    QList<SceneTile> m_tiles;
    QRectF m_sceneRect;
    double m_viewScale = 1.0;
    quint64 m_revision = 0;
    bool m_modelReplaced = false;
};

} // namespace zm
