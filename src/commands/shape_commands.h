#pragma once

#include "commands/state_command.h"
#include "commands/undo_memory_cost.h"

#include <QCoreApplication>

namespace zm {

// Commands of what a shape layer holds. A merge key of 0 stands for an edit outside any gesture.

/// An outline in its box and where the layer lies.
struct PlacedShape
{
    SizedShapeGeometry geometry;
    ObjectTransform transform;

    friend bool operator==(const PlacedShape &a, const PlacedShape &b) = default;
};

/// The same with its stroke.
struct StrokedShape
{
    Stroke stroke;
    PlacedShape placed;

    friend bool operator==(const StrokedShape &a, const StrokedShape &b) = default;
};

/// Another outline in the same box.
class SetShapeGeometryCommand : public StateCommand<ShapeGeometry, ShapeLayer>, public UndoMemoryCost
{
public:
    SetShapeGeometryCommand(Document *document, const QUuid &layerId, const ShapeGeometry &geometry,
                            const QString &text, quint64 mergeKey = 0, QUndoCommand *parent = nullptr);

    qint64 undoMemoryBytes() const override;

protected:
    void apply(const ShapeGeometry &geometry) override;
};

/// Turns a generated outline into a path as it is now; obsolete where there is none to turn.
class ConvertShapeToPathCommand : public StateCommand<ShapeGeometry, ShapeLayer>, public UndoMemoryCost
{
    Q_DECLARE_TR_FUNCTIONS(ConvertShapeToPathCommand)

public:
    ConvertShapeToPathCommand(Document *document, const QUuid &layerId, QUndoCommand *parent = nullptr);

    qint64 undoMemoryBytes() const override;

protected:
    void apply(const ShapeGeometry &geometry) override;
};

class ResizeShapeLayerCommand : public StateCommand<PlacedShape, ShapeLayer>
{
public:
    ResizeShapeLayerCommand(Document *document, const QUuid &layerId, const SizedShapeGeometry &geometry,
                            const ObjectTransform &transform, quint64 mergeKey, const QString &text,
                            QUndoCommand *parent = nullptr);

protected:
    void apply(const PlacedShape &placed) override;
};

class SetShapeFillCommand : public StateCommand<Fill, ShapeLayer>
{
public:
    SetShapeFillCommand(Document *document, const QUuid &layerId, const Fill &fill, const QString &text,
                        quint64 mergeKey = 0, QUndoCommand *parent = nullptr);

protected:
    void apply(const Fill &fill) override;
};

/// A stroke with the box that makes room for it.
class SetShapeStrokeCommand : public StateCommand<StrokedShape, ShapeLayer>
{
public:
    SetShapeStrokeCommand(Document *document, const QUuid &layerId, const Stroke &stroke,
                          const SizedShapeGeometry &geometry, const ObjectTransform &transform, const QString &text,
                          quint64 mergeKey = 0, QUndoCommand *parent = nullptr);

    /// When the stroke is back where it began, so are the box and the place, and the step is gone.
    bool mergeWith(const QUndoCommand *other) override;

protected:
    void apply(const StrokedShape &shape) override;
};

} // namespace zm
