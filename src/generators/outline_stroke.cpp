#include "generators/outline_stroke.h"

#include "generators/shape_generator.h"

namespace zm {

EditablePath outlineInBox(const ShapeGenerator &generator, const ParameterValues &values, const QSizeF &size,
                          const Stroke &stroke)
{
    const double inset = outlineInset(stroke);
    return translated(generator.generate(size - QSizeF(2.0 * inset, 2.0 * inset), values), {inset, inset});
}

QPen outlinePen(const Stroke &stroke)
{
    if (stroke.width <= 0.0)
        return Qt::NoPen;
    QPen pen(stroke.color, stroke.width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
    pen.setMiterLimit(kOutlineMiterLimit);
    return pen;
}

} // namespace zm
