#include "generators/shape_preview.h"

#include "base/sanitize.h"
#include "generators/outline_stroke.h"
#include "generators/shape_generator.h"

#include <QPainter>

namespace zm {

Stroke defaultShapeStroke(const ShapeGenerator &generator)
{
    const QColor color = generator.defaultStrokeColor();
    return color.isValid() ? Stroke{color, kDefaultShapeStrokeWidth} : Stroke();
}

QPainterPath shapePreviewOutline(const ShapeGenerator &generator, const ParameterValues &values,
                                 const QSizeF &logicalSize)
{
    return painterPath(outlineInBox(generator, values, sizeOfAtLeastOne(logicalSize), defaultShapeStroke(generator)));
}

QImage shapePreview(const ShapeGenerator &generator, const ParameterValues &values, const QSizeF &logicalSize,
                    const QSize &pixelSize)
{
    const QSizeF size = sizeOfAtLeastOne(logicalSize);
    QImage image(pixelSize.expandedTo({1, 1}), QImage::Format_RGBA8888);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(image.width() / size.width(), image.height() / size.height());
    painter.setBrush(generator.defaultFillColor());
    painter.setPen(outlinePen(defaultShapeStroke(generator)));
    painter.drawPath(shapePreviewOutline(generator, values, size));
    return image;
}

} // namespace zm
