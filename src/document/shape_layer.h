#pragma once

#include "document/layer.h"
#include "values/editable_path.h"
#include "values/fill.h"

#include <variant>

namespace zm {

/// An outline that a generator draws at every size.
struct GeneratorGeometry
{
    QString generatorId;
    ParameterValues parameters;

    friend bool operator==(const GeneratorGeometry &a, const GeneratorGeometry &b) = default;
};

/// Where the outline of a shape comes from.
using ShapeGeometry = std::variant<GeneratorGeometry, EditablePath>;

/// An outline and the box it belongs to, in layer units.
struct SizedShapeGeometry
{
    ShapeGeometry geometry;
    QSizeF size;

    friend bool operator==(const SizedShapeGeometry &a, const SizedShapeGeometry &b);
};

/// The geometry as a layer keeps it: of a path, every coordinate finite, types known, ids present and unique, and no
/// more contours and nodes than a document can hold.
ShapeGeometry cleanGeometry(const ShapeGeometry &geometry);
/// The same, with each side at least 1 and at most what a document can hold; one that is not finite becomes 1. A box of
/// more pixels than a raster may have is reduced to as many, in proportion.
SizedShapeGeometry cleanGeometry(const SizedShapeGeometry &geometry);

/// A width that is not finite or negative becomes 0, an absurd one that of the largest box; an invalid colour of a
/// visible stroke becomes black.
Stroke cleanStroke(const Stroke &stroke);

/// The bytes that an undo step holding the geometry answers for.
qint64 memoryBytes(const ShapeGeometry &geometry);

/// A vector layer: an outline with a fill and a stroke in a box of its own. A generated outline shrinks inside the box
/// as the stroke grows, so that the stroke stays in the box; a path does not.
class ShapeLayer : public Layer
{
public:
    ShapeLayer(const ShapeGeometry &geometry, const QSizeF &size, const Stroke &stroke, const Fill &fill,
               const QString &name, const QUuid &id = {});

    LayerType layerType() const override { return LayerType::Shape; }
    /// The filled and stroked outline. Nothing is drawn for a generator that is not known.
    RenderedContent renderContent(const RenderServices *services) const override;

    const ShapeGeometry &geometry() const { return m_shape.geometry; }
    const SizedShapeGeometry &sizedGeometry() const { return m_shape; }
    QSizeF layerSize() const { return m_shape.size; }
    const Fill &fill() const { return m_fill; }
    const Stroke &stroke() const { return m_stroke; }

    /// The outline in layer units, derived when it is first asked for after a change.
    const EditablePath &generatedPath() const;
    /// The same to draw.
    const QPainterPath &painterPath() const;

    // Setters return whether something changed.
    bool setGeometry(const ShapeGeometry &geometry);
    bool setSizedGeometry(const SizedShapeGeometry &geometry);
    bool setFill(const Fill &fill);
    bool setStroke(const Stroke &stroke);

    qint64 memoryBytes() const override;

private:
    bool isGenerated() const { return std::holds_alternative<GeneratorGeometry>(m_shape.geometry); }
    void deriveOutline() const;

    SizedShapeGeometry m_shape;
    Fill m_fill;
    Stroke m_stroke;
    mutable EditablePath m_generatedPath;
    mutable QPainterPath m_painterPath;
    mutable bool m_pathDirty = true;
};

} // namespace zm
