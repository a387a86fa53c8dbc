#include "commands/shape_commands.h"

namespace zm {

namespace {

PlacedShape placedShape(const ShapeLayer &layer)
{
    return {layer.sizedGeometry(), layer.transform()};
}

StrokedShape strokedShape(const ShapeLayer &layer)
{
    return {layer.stroke(), placedShape(layer)};
}

/// Null unless the layer's outline comes from a generator and has a node.
const ShapeLayer *convertible(const ShapeLayer *layer)
{
    const bool canConvert =
        layer && std::holds_alternative<GeneratorGeometry>(layer->geometry()) && !layer->generatedPath().isEmpty();
    return canConvert ? layer : nullptr;
}

ShapeGeometry outlineAsPath(const ShapeLayer *layer)
{
    return layer ? cleanGeometry(ShapeGeometry(layer->generatedPath())) : ShapeGeometry();
}

} // namespace

SetShapeGeometryCommand::SetShapeGeometryCommand(Document *document, const QUuid &layerId,
                                                 const ShapeGeometry &geometry, const QString &text, quint64 mergeKey,
                                                 QUndoCommand *parent)
    : StateCommand(document, layerId, stateOf(document->shapeLayer(layerId), &ShapeLayer::geometry),
                   cleanGeometry(geometry), text, parent, MergeId::ShapeGeometry, mergeKey)
{
}

void SetShapeGeometryCommand::apply(const ShapeGeometry &geometry)
{
    document()->setShapeGeometry(objectId(), geometry);
}

qint64 SetShapeGeometryCommand::undoMemoryBytes() const
{
    return memoryBytes(before()) + memoryBytes(after());
}

ConvertShapeToPathCommand::ConvertShapeToPathCommand(Document *document, const QUuid &layerId, QUndoCommand *parent)
    : StateCommand(document, layerId, stateOf(convertible(document->shapeLayer(layerId)), &ShapeLayer::geometry),
                   outlineAsPath(convertible(document->shapeLayer(layerId))), tr("Convert Shape to Path"), parent)
{
}

void ConvertShapeToPathCommand::apply(const ShapeGeometry &geometry)
{
    document()->setShapeGeometry(objectId(), geometry);
}

qint64 ConvertShapeToPathCommand::undoMemoryBytes() const
{
    return memoryBytes(before()) + memoryBytes(after());
}

ResizeShapeLayerCommand::ResizeShapeLayerCommand(Document *document, const QUuid &layerId,
                                                 const SizedShapeGeometry &geometry, const ObjectTransform &transform,
                                                 quint64 mergeKey, const QString &text, QUndoCommand *parent)
    : StateCommand(document, layerId, stateOf(document->shapeLayer(layerId), placedShape),
                   {cleanGeometry(geometry), transform}, text, parent, MergeId::ResizeShape, mergeKey)
{
}

void ResizeShapeLayerCommand::apply(const PlacedShape &placed)
{
    document()->setShapeGeometryAndTransform(objectId(), placed.geometry, placed.transform);
}

SetShapeFillCommand::SetShapeFillCommand(Document *document, const QUuid &layerId, const Fill &fill,
                                         const QString &text, quint64 mergeKey, QUndoCommand *parent)
    : StateCommand(document, layerId, stateOf(document->shapeLayer(layerId), &ShapeLayer::fill), fill, text, parent,
                   MergeId::ShapeFill, mergeKey)
{
}

void SetShapeFillCommand::apply(const Fill &fill)
{
    document()->setShapeFill(objectId(), fill);
}

SetShapeStrokeCommand::SetShapeStrokeCommand(Document *document, const QUuid &layerId, const Stroke &stroke,
                                             const SizedShapeGeometry &geometry, const ObjectTransform &transform,
                                             const QString &text, quint64 mergeKey, QUndoCommand *parent)
    : StateCommand(document, layerId, stateOf(document->shapeLayer(layerId), strokedShape),
                   {cleanStroke(stroke), {cleanGeometry(geometry), transform}}, text, parent, MergeId::ShapeStroke,
                   mergeKey)
{
}

bool SetShapeStrokeCommand::mergeWith(const QUndoCommand *other)
{
    if (!StateCommand::mergeWith(other))
        return false;
    if (after().stroke == before().stroke && !isObsolete())
        returnToStart();
    return true;
}

void SetShapeStrokeCommand::apply(const StrokedShape &shape)
{
    document()->setShapeGeometryAndTransform(objectId(), shape.placed.geometry, shape.placed.transform);
    document()->setShapeStroke(objectId(), shape.stroke.color, shape.stroke.width);
}

} // namespace zm
