#include "generators/shape_preview.h"

#include "document/editable_path.h"
#include "generators/shape_generator.h"

#include <QPainter>

namespace zm {

namespace {

// For each unit of the stroke's width, on every side, as shape layers do it.
constexpr double kInsetOfStroke = 1.25;

} // namespace

Stroke shapePreviewStroke(const ShapeGenerator &generator)
{
    const QColor color = generator.defaultStrokeColor();
    return color.isValid() ? Stroke{color, kPreviewStrokeWidth} : Stroke();
}

QPainterPath shapePreviewOutline(const ShapeGenerator &generator, const ParameterValues &values,
                                 const QSizeF &logicalSize)
{
    const double inset = shapePreviewStroke(generator).width * kInsetOfStroke;
    const QSizeF box = logicalSize.expandedTo({1.0, 1.0}) - QSizeF(2.0 * inset, 2.0 * inset);
    return painterPath(generator.generate(box, values)).translated(inset, inset);
}

QImage shapePreview(const ShapeGenerator &generator, const ParameterValues &values, const QSizeF &logicalSize,
                    const QSize &pixelSize)
{
    const QSizeF size = logicalSize.expandedTo({1.0, 1.0});
    QImage image(pixelSize.expandedTo({1, 1}), QImage::Format_RGBA8888);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(image.width() / size.width(), image.height() / size.height());
    painter.setBrush(generator.defaultFillColor());
    painter.setPen(Qt::NoPen);
    if (const Stroke stroke = shapePreviewStroke(generator); stroke.width > 0.0) {
        QPen pen(stroke.color, stroke.width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
        pen.setMiterLimit(kPreviewMiterLimit);
        painter.setPen(pen);
    }
    painter.drawPath(shapePreviewOutline(generator, values, size));
    return image;
}

} // namespace zm
