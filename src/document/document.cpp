#include "document/document.h"

#include "base/fuzzy.h"
#include "base/sanitize.h"

#include <QSet>

#include <algorithm>

namespace zm {

namespace {

bool haveDistinctIds(const std::vector<std::unique_ptr<SceneObject>> &objects)
{
    QSet<QUuid> ids;
    for (const std::unique_ptr<SceneObject> &object : objects) {
        if (!object || object->id().isNull() || ids.contains(object->id()))
            return false;
        ids.insert(object->id());
    }
    return true;
}

} // namespace

Document::Document(QObject *parent)
    : QObject(parent)
{
}

Document::~Document() = default;

QRectF Document::documentRect() const
{
    return {-m_size.width() / 2.0, -m_size.height() / 2.0, m_size.width(), m_size.height()};
}

SceneObject *Document::objectAt(qsizetype index) const
{
    return index >= 0 && index < objectCount() ? m_objects[size_t(index)].get() : nullptr;
}

qsizetype Document::indexOf(const QUuid &id) const
{
    if (!m_objectsById.contains(id))
        return -1;
    const auto found = std::find_if(m_objects.cbegin(), m_objects.cend(),
                                    [&id](const std::unique_ptr<SceneObject> &object) { return object->id() == id; });
    return found - m_objects.cbegin();
}

SceneObject *Document::object(const QUuid &id) const
{
    return m_objectsById.value(id);
}

Layer *Document::layer(const QUuid &id) const
{
    return dynamic_cast<Layer *>(object(id));
}

ImageLayer *Document::imageLayer(const QUuid &id) const
{
    return dynamic_cast<ImageLayer *>(object(id));
}

ShapeLayer *Document::shapeLayer(const QUuid &id) const
{
    return dynamic_cast<ShapeLayer *>(object(id));
}

TextLayer *Document::textLayer(const QUuid &id) const
{
    return dynamic_cast<TextLayer *>(object(id));
}

SceneObject *Document::insertObject(std::unique_ptr<SceneObject> object, qsizetype index)
{
    if (!object || m_objectsById.contains(object->id()))
        return nullptr;
    const qsizetype position = index == -1 ? objectCount() : index;
    if (position < 0 || position > objectCount())
        return nullptr;
    SceneObject *inserted = object.get();
    const QUuid id = inserted->id();
    emit objectAboutToBeInserted(position, id);
    m_objects.insert(m_objects.begin() + position, std::move(object));
    m_objectsById.insert(id, inserted);
    emit objectInserted(position, id);
    return inserted;
}

std::unique_ptr<SceneObject> Document::takeObject(const QUuid &id, qsizetype *index)
{
    const qsizetype position = indexOf(id);
    if (position < 0)
        return nullptr;
    // A copy: the caller's reference may be to something that listeners change.
    const QUuid takenId = id;
    emit objectAboutToBeRemoved(position, takenId);
    if (m_selectedObjectId == takenId)
        setSelectedObjectId({});
    std::unique_ptr<SceneObject> taken = std::move(m_objects[size_t(position)]);
    m_objects.erase(m_objects.begin() + position);
    m_objectsById.remove(takenId);
    if (index)
        *index = position;
    emit objectRemoved(position, takenId);
    return taken;
}

bool Document::moveObject(const QUuid &id, qsizetype toIndex)
{
    const qsizetype fromIndex = indexOf(id);
    if (fromIndex < 0 || toIndex < 0 || toIndex >= objectCount() || toIndex == fromIndex)
        return false;
    const QUuid movedId = id;
    emit objectAboutToBeMoved(fromIndex, toIndex, movedId);
    std::unique_ptr<SceneObject> moved = std::move(m_objects[size_t(fromIndex)]);
    m_objects.erase(m_objects.begin() + fromIndex);
    m_objects.insert(m_objects.begin() + toIndex, std::move(moved));
    emit objectMoved(fromIndex, toIndex, movedId);
    return true;
}

bool Document::replaceContents(const QSizeF &size, const QColor &backgroundColor,
                               std::vector<std::unique_ptr<SceneObject>> objects)
{
    if (!haveDistinctIds(objects))
        return false;
    clearSelection();
    while (!m_objects.empty())
        takeObject(m_objects.front()->id());
    setSize(size);
    setBackgroundColor(backgroundColor);
    for (std::unique_ptr<SceneObject> &object : objects)
        insertObject(std::move(object));
    return true;
}

bool Document::setSize(const QSizeF &size)
{
    const QSizeF clean = cleanDocumentSize(size);
    if (fuzzyEqual(m_size, clean))
        return false;
    m_size = clean;
    emit sizeChanged(m_size);
    return true;
}

bool Document::setBackgroundColor(const QColor &color)
{
    const QColor clean = cleanBackgroundColor(color);
    if (m_backgroundColor == clean)
        return false;
    m_backgroundColor = clean;
    emit backgroundColorChanged(m_backgroundColor);
    return true;
}

bool Document::selectObject(const QUuid &id)
{
    if (m_selectedObjectId == id || (!id.isNull() && indexOf(id) < 0))
        return false;
    setSelectedObjectId(id);
    return true;
}

bool Document::clearSelection()
{
    return selectObject({});
}

void Document::setSelectedObjectId(const QUuid &id)
{
    m_selectedObjectId = id;
    emit selectionChanged(id);
}

bool Document::setObjectName(const QUuid &id, const QString &name)
{
    SceneObject *target = object(id);
    if (!target || !target->setName(name))
        return false;
    emit objectNameChanged(target->id());
    return true;
}

bool Document::setObjectVisible(const QUuid &id, bool visible)
{
    SceneObject *target = object(id);
    if (!target || !target->setVisible(visible))
        return false;
    emit objectVisibilityChanged(target->id());
    return true;
}

bool Document::setObjectOpacity(const QUuid &id, double opacity)
{
    SceneObject *target = object(id);
    if (!target || !target->setOpacity(opacity))
        return false;
    emit objectOpacityChanged(target->id());
    return true;
}

bool Document::setObjectBlendMode(const QUuid &id, const QString &blendMode)
{
    SceneObject *target = object(id);
    if (!target || !target->setBlendMode(blendMode))
        return false;
    emit objectBlendModeChanged(target->id());
    return true;
}

bool Document::setObjectTransform(const QUuid &id, const ObjectTransform &transform)
{
    SceneObject *target = object(id);
    if (!target || !target->setTransform(transform))
        return false;
    emit objectTransformChanged(target->id());
    return true;
}

bool Document::setLayerFilters(const QUuid &id, const QList<FilterInstance> &filters)
{
    Layer *target = layer(id);
    if (!target || !target->setFilters(filters))
        return false;
    emit layerFiltersChanged(target->id());
    return true;
}

bool Document::setImageLayerSource(const QUuid &id, const ImageLayerSource &source, const ObjectTransform &transform,
                                   RasterSurfacePolicy policy)
{
    ImageLayer *target = imageLayer(id);
    if (!target)
        return false;
    const bool sourceChanged = target->setSource(source);
    const bool transformChanged = target->setTransform(transform);
    const bool policyChanged = target->setRasterSurfacePolicy(policy);
    const QUuid targetId = target->id();
    if (sourceChanged || policyChanged)
        emit imageLayerChanged(targetId);
    if (transformChanged)
        emit objectTransformChanged(targetId);
    return sourceChanged || policyChanged || transformChanged;
}

bool Document::setImageLayerRasterSelection(const QUuid &id, const std::optional<EditablePath> &selection)
{
    ImageLayer *target = imageLayer(id);
    if (!target || !target->setRasterSelection(selection))
        return false;
    emit imageLayerChanged(target->id());
    return true;
}

bool Document::setShapeFill(const QUuid &id, const Fill &fill)
{
    ShapeLayer *target = shapeLayer(id);
    if (!target || !target->setFill(fill))
        return false;
    emit shapeLayerChanged(target->id());
    return true;
}

bool Document::setShapeStroke(const QUuid &id, const QColor &color, double width)
{
    ShapeLayer *target = shapeLayer(id);
    if (!target || !target->setStroke({color, width}))
        return false;
    emit shapeLayerChanged(target->id());
    return true;
}

bool Document::setShapeGeometry(const QUuid &id, const ShapeGeometry &geometry)
{
    ShapeLayer *target = shapeLayer(id);
    if (!target || !target->setGeometry(geometry))
        return false;
    emit shapeGeometryChanged(target->id());
    return true;
}

bool Document::setShapeGeometryAndTransform(const QUuid &id, const SizedShapeGeometry &geometry,
                                            const ObjectTransform &transform)
{
    ShapeLayer *target = shapeLayer(id);
    if (!target)
        return false;
    const bool geometryChanged = target->setSizedGeometry(geometry);
    const bool transformChanged = target->setTransform(transform);
    const QUuid targetId = target->id();
    if (geometryChanged)
        emit shapeGeometryChanged(targetId);
    if (transformChanged)
        emit objectTransformChanged(targetId);
    return geometryChanged || transformChanged;
}

bool Document::setTextLayerState(const QUuid &id, const TextLayerState &state)
{
    TextLayer *target = textLayer(id);
    if (!target || !target->setState(state))
        return false;
    emit textLayerChanged(target->id());
    return true;
}

QSizeF cleanDocumentSize(const QSizeF &size)
{
    return sizeOfAtLeastOne(size);
}

QColor cleanBackgroundColor(const QColor &color)
{
    return color.isValid() ? color : QColor(Qt::white);
}

} // namespace zm
