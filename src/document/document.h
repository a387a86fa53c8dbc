#pragma once

#include "document/image_layer.h"
#include "document/shape_layer.h"
#include "document/text_layer.h"

#include <QColor>
#include <QHash>
#include <QObject>
#include <QRectF>

#include <memory>
#include <vector>

namespace zm {

/// The root of the scene: an ordered list of owned objects on a background, with at most one selected. Every change of
/// an object that the rest of the program can see goes through a setter here, which compares, applies, and emits one
/// signal; setters return whether something changed. Document units are pixels and (0, 0) is the document's centre.
class Document : public QObject
{
    Q_OBJECT

public:
    explicit Document(QObject *parent = nullptr);
    ~Document() override;

    QSizeF size() const { return m_size; }
    /// Centred on the origin.
    QRectF documentRect() const;
    QColor backgroundColor() const { return m_backgroundColor; }

    // Index 0 is the bottom of the stack. An unknown id or index gives -1 or null; a null id is never found.
    qsizetype objectCount() const { return qsizetype(m_objects.size()); }
    SceneObject *objectAt(qsizetype index) const;
    qsizetype indexOf(const QUuid &id) const;
    SceneObject *object(const QUuid &id) const;
    Layer *layer(const QUuid &id) const;
    ImageLayer *imageLayer(const QUuid &id) const;
    ShapeLayer *shapeLayer(const QUuid &id) const;
    TextLayer *textLayer(const QUuid &id) const;

    QUuid selectedObjectId() const { return m_selectedObjectId; }
    SceneObject *selectedObject() const { return object(m_selectedObjectId); }

    /// Inserts at index, at the top for -1. Returns the object, or null when it was refused and destroyed: a null
    /// object, an id that is present already, or an index out of range.
    SceneObject *insertObject(std::unique_ptr<SceneObject> object, qsizetype index = -1);
    /// Takes the object out, clearing the selection if it was selected. Null for an unknown id.
    std::unique_ptr<SceneObject> takeObject(const QUuid &id, qsizetype *index = nullptr);
    bool moveObject(const QUuid &id, qsizetype toIndex);
    /// Swaps the whole document. Refused, with the document untouched, for a null object or an id that occurs twice.
    bool replaceContents(const QSizeF &size, const QColor &backgroundColor,
                         std::vector<std::unique_ptr<SceneObject>> objects);

    /// Each side is raised to at least 1; a side that is not a number becomes 1.
    bool setSize(const QSizeF &size);
    /// An invalid colour becomes white.
    bool setBackgroundColor(const QColor &color);

    bool selectObject(const QUuid &id);
    bool clearSelection();

    bool setObjectName(const QUuid &id, const QString &name);
    bool setObjectVisible(const QUuid &id, bool visible);
    bool setObjectOpacity(const QUuid &id, double opacity);
    bool setObjectBlendMode(const QUuid &id, const QString &blendMode);
    bool setObjectTransform(const QUuid &id, const ObjectTransform &transform);

    bool setLayerFilters(const QUuid &id, const QList<FilterInstance> &filters);

    /// Source, transform and policy as one step; listeners to the transform's signal see the new pixels.
    bool setImageLayerSource(const QUuid &id, const ImageLayerSource &source, const ObjectTransform &transform,
                             RasterSurfacePolicy policy);
    bool setImageLayerRasterSelection(const QUuid &id, const std::optional<EditablePath> &selection);

    bool setShapeFill(const QUuid &id, const Fill &fill);
    bool setShapeStroke(const QUuid &id, const QColor &color, double width);
    bool setShapeGeometry(const QUuid &id, const ShapeGeometry &geometry);
    /// Geometry, its box and the transform as one step; listeners to the transform's signal see the new outline.
    bool setShapeGeometryAndTransform(const QUuid &id, const SizedShapeGeometry &geometry,
                                      const ObjectTransform &transform);
    bool setTextLayerState(const QUuid &id, const TextLayerState &state);

signals:
    void sizeChanged(const QSizeF &size);
    void backgroundColorChanged(const QColor &color);
    void objectAboutToBeInserted(qsizetype index, const QUuid &id);
    void objectInserted(qsizetype index, const QUuid &id);
    void objectAboutToBeRemoved(qsizetype index, const QUuid &id);
    void objectRemoved(qsizetype index, const QUuid &id);
    void objectAboutToBeMoved(qsizetype fromIndex, qsizetype toIndex, const QUuid &id);
    void objectMoved(qsizetype fromIndex, qsizetype toIndex, const QUuid &id);
    void objectNameChanged(const QUuid &id);
    void objectVisibilityChanged(const QUuid &id);
    void objectOpacityChanged(const QUuid &id);
    void objectBlendModeChanged(const QUuid &id);
    void objectTransformChanged(const QUuid &id);
    void imageLayerChanged(const QUuid &id);
    void layerFiltersChanged(const QUuid &id);
    void shapeGeometryChanged(const QUuid &id);
    /// Fill or stroke.
    void shapeLayerChanged(const QUuid &id);
    void textLayerChanged(const QUuid &id);
    void selectionChanged(const QUuid &id);

private:
    void setSelectedObjectId(const QUuid &id);

    std::vector<std::unique_ptr<SceneObject>> m_objects;
    QHash<QUuid, SceneObject *> m_objectsById;
    QUuid m_selectedObjectId;
    QSizeF m_size{800.0, 600.0};
    QColor m_backgroundColor = Qt::white;
};

/// The size that the document stores for a given one: each side at least 1, and 1 where it is not a finite number.
QSizeF cleanDocumentSize(const QSizeF &size);

/// The background that the document stores for a given one: white for an invalid colour.
QColor cleanBackgroundColor(const QColor &color);

} // namespace zm
