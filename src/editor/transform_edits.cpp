#include "editor/transform_edits.h"

#include <algorithm>
#include <cmath>

namespace zm {

ObjectTransform withScale(ObjectTransform transform, Axis axis, double scale, bool preserveAspect)
{
    const QPointF before = transform.scale();
    transform.setScale(withComponent(before, axis, scale));
    if (!preserveAspect)
        return transform;
    const QPointF after = transform.scale();
    const double least = ObjectTransform::kMinimumScale / std::min(std::abs(before.x()), std::abs(before.y()));
    const double factor = std::max(std::abs(along(after, axis) / along(before, axis)), least);
    transform.setScale({std::copysign(before.x() * factor, after.x()), std::copysign(before.y() * factor, after.y())});
    return transform;
}

ObjectTransform withAnchor(ObjectTransform transform, const QPointF &anchor, const QRectF &box)
{
    const QPointF cornerBefore = transform.matrix(box).map(box.topLeft());
    transform.setAnchor(anchor);
    const QPointF cornerAfter = transform.matrix(box).map(box.topLeft());
    transform.setPosition(transform.position() + cornerBefore - cornerAfter);
    return transform;
}

} // namespace zm
