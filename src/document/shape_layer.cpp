#include "document/shape_layer.h"

#include "base/fuzzy.h"
#include "base/pixel_limits.h"
#include "base/sanitize.h"
#include "generators/outline_stroke.h"
#include "generators/shape_generator_registry.h"
#include "values/valid_color.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zm {

namespace {

/// What the document file takes.
constexpr double kMaximumSide = 1'000'000.0;

/// A box of more pixels than a raster may have could be neither drawn nor saved: it is reduced in proportion.
QSizeF cleanBox(const QSizeF &size)
{
    const QSizeF box = sizeOfAtLeastOne(size).boundedTo({kMaximumSide, kMaximumSide});
    if (isAllocatableRasterSize(coveringPixels(box)))
        return box;
    const double factor = std::sqrt(double(kMaximumRasterPixels) / (box.width() * box.height()));
    return {std::floor(box.width() * factor), std::floor(box.height() * factor)};
}

/// Qt's smooth rasteriser keeps a list of edges for each row of pixels and walks it for each edge, so its time grows
/// with the square of the edges in a row: minutes for an outline of a million nodes, which the plain one draws in a
/// second. These limits keep the smooth one to about a second as well.
bool canBeSmoothed(const QPainterPath &outline, const QSizeF &box, bool isStroked)
{
    // A line around an outline has two edges and joins at every node.
    const double share = isStroked ? 4.0 : 1.0;
    constexpr double maximumElements = 100'000.0;
    constexpr double maximumWork = 2e8;
    if (share * outline.elementCount() > maximumElements)
        return false;
    const auto inBox = [&](const QPainterPath::Element &element) {
        return QPointF(std::clamp(element.x, 0.0, box.width()), std::clamp(element.y, 0.0, box.height()));
    };
    double length = 0.0;
    for (int i = 1; i < outline.elementCount(); ++i)
        length += QLineF(inBox(outline.elementAt(i - 1)), inBox(outline.elementAt(i))).length();
    return share * share * length * length / box.height() <= maximumWork;
}

} // namespace

bool operator==(const SizedShapeGeometry &a, const SizedShapeGeometry &b)
{
    return fuzzyEqual(a.size, b.size) && a.geometry == b.geometry;
}

ShapeGeometry cleanGeometry(const ShapeGeometry &geometry)
{
    const EditablePath *path = std::get_if<EditablePath>(&geometry);
    return path ? ShapeGeometry(cleanedPath(*path)) : geometry;
}

SizedShapeGeometry cleanGeometry(const SizedShapeGeometry &geometry)
{
    return {cleanGeometry(geometry.geometry), cleanBox(geometry.size)};
}

Stroke cleanStroke(const Stroke &stroke)
{
    const double width = std::clamp(finiteOr(stroke.width, 0.0), 0.0, kMaximumSide);
    return {width > 0.0 ? validOrBlack(stroke.color) : stroke.color, width};
}

qint64 memoryBytes(const ShapeGeometry &geometry)
{
    if (const EditablePath *path = std::get_if<EditablePath>(&geometry))
        return memoryBytes(*path);
    // Estimates of what the map costs for each entry, and when it has none.
    const auto &generator = std::get<GeneratorGeometry>(geometry);
    const qint64 entries = generator.parameters.count();
    return generator.generatorId.size() * qint64(sizeof(QChar)) + (entries > 0 ? 128 * entries : 32);
}

ShapeLayer::ShapeLayer(const ShapeGeometry &geometry, const QSizeF &size, const Stroke &stroke, const Fill &fill,
                       const QString &name, const QUuid &id)
    : Layer(name, id)
    , m_shape(cleanGeometry(SizedShapeGeometry{geometry, size}))
    , m_fill(fill)
    , m_stroke(cleanStroke(stroke))
{
}

RenderedContent ShapeLayer::renderContent(const RenderServices *) const
{
    const QSizeF size = layerSize();
    QImage image = transparentContentImage(size);
    if (image.isNull())
        return {image, size};

    const double scaleX = image.width() / size.width();
    const double scaleY = image.height() / size.height();
    QBrush brush = m_fill.brushFor(image.size());
    if (m_fill.texture())
        brush.setTransform(brush.transform() * QTransform::fromScale(1.0 / scaleX, 1.0 / scaleY));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, canBeSmoothed(painterPath(), size, m_stroke.width > 0.0));
    painter.scale(scaleX, scaleY);
    painter.setBrush(brush);
    painter.setPen(outlinePen(m_stroke));
    painter.drawPath(painterPath());
    return {image, size};
}

const EditablePath &ShapeLayer::generatedPath() const
{
    deriveOutline();
    return m_generatedPath;
}

const QPainterPath &ShapeLayer::painterPath() const
{
    deriveOutline();
    return m_painterPath;
}

bool ShapeLayer::setGeometry(const ShapeGeometry &geometry)
{
    return setSizedGeometry({geometry, layerSize()});
}

bool ShapeLayer::setSizedGeometry(const SizedShapeGeometry &geometry)
{
    if (m_shape == geometry)
        return false;
    SizedShapeGeometry clean = cleanGeometry(geometry);
    if (m_shape == clean)
        return false;
    m_shape = std::move(clean);
    m_pathDirty = true;
    markContentChanged();
    return true;
}

bool ShapeLayer::setFill(const Fill &fill)
{
    if (m_fill == fill)
        return false;
    m_fill = fill;
    markContentChanged();
    return true;
}

bool ShapeLayer::setStroke(const Stroke &stroke)
{
    const Stroke clean = cleanStroke(stroke);
    if (m_stroke == clean)
        return false;
    if (isGenerated() && outlineInset(clean) != outlineInset(m_stroke))
        m_pathDirty = true;
    m_stroke = clean;
    markContentChanged();
    return true;
}

qint64 ShapeLayer::memoryBytes() const
{
    return Layer::memoryBytes() + zm::memoryBytes(m_shape.geometry);
}

void ShapeLayer::deriveOutline() const
{
    if (!m_pathDirty)
        return;
    if (const EditablePath *path = std::get_if<EditablePath>(&m_shape.geometry)) {
        m_generatedPath = *path;
    } else {
        const auto &geometry = std::get<GeneratorGeometry>(m_shape.geometry);
        const ShapeGenerator *generator = ShapeGeneratorRegistry::instance().find(geometry.generatorId);
        m_generatedPath =
            generator ? outlineInBox(*generator, geometry.parameters, layerSize(), m_stroke) : EditablePath();
    }
    m_painterPath = zm::painterPath(m_generatedPath);
    m_pathDirty = false;
}

} // namespace zm
