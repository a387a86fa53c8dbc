#include "values/object_transform.h"

#include "base/fuzzy.h"
#include "base/sanitize.h"

#include <QtMath>

namespace zm {

namespace {

double cleanScale(double value)
{
    const double finite = finiteOr(value, 1.0);
    return std::abs(finite) < ObjectTransform::kMinimumScale ? std::copysign(ObjectTransform::kMinimumScale, finite)
                                                             : finite;
}

double cleanShear(double value)
{
    return std::clamp(finiteOr(value, 0.0), -ObjectTransform::kMaximumShear, ObjectTransform::kMaximumShear);
}

} // namespace

void ObjectTransform::setPosition(const QPointF &position)
{
    m_position = {finiteOr(position.x(), 0.0), finiteOr(position.y(), 0.0)};
}

void ObjectTransform::setScale(const QPointF &scale)
{
    m_scale = {cleanScale(scale.x()), cleanScale(scale.y())};
}

void ObjectTransform::setShear(const QPointF &shear)
{
    m_shear = {cleanShear(shear.x()), cleanShear(shear.y())};
}

void ObjectTransform::setAnchor(const QPointF &anchor)
{
    m_anchor = {std::clamp(finiteOr(anchor.x(), 0.5), 0.0, 1.0), std::clamp(finiteOr(anchor.y(), 0.5), 0.0, 1.0)};
}

void ObjectTransform::setRotation(double rotation)
{
    m_rotation = finiteOr(rotation, 0.0);
}

QPointF ObjectTransform::anchorPoint(const QRectF &localRect) const
{
    return {localRect.left() + localRect.width() * m_anchor.x(), localRect.top() + localRect.height() * m_anchor.y()};
}

QTransform ObjectTransform::matrix(const QRectF &localRect) const
{
    const QPointF anchor = anchorPoint(localRect);
    QTransform transform;
    transform.translate(m_position.x(), m_position.y());
    transform.translate(anchor.x(), anchor.y());
    transform.rotate(m_rotation, Qt::ZAxis);
    transform.shear(std::tan(qDegreesToRadians(m_shear.x())), std::tan(qDegreesToRadians(m_shear.y())));
    transform.scale(m_scale.x(), m_scale.y());
    transform.translate(-anchor.x(), -anchor.y());
    return transform;
}

ObjectTransform ObjectTransform::fromMatrix(const QTransform &matrix, const QRectF &localRect, const QPointF &anchor)
{
    // The first row of the linear part is the scaled and rotated x axis; of the second row, what lies along that axis
    // is shear, and what stands upright on it is the scale of y.
    const double scaleX = std::max(std::hypot(matrix.m11(), matrix.m12()), kMinimumScale);
    const QPointF axis(matrix.m11() / scaleX, matrix.m12() / scaleX);
    double scaleY = axis.x() * matrix.m22() - axis.y() * matrix.m21();
    if (std::abs(scaleY) < kMinimumScale)
        scaleY = std::copysign(kMinimumScale, scaleY);
    const double shearX = std::atan((axis.y() * matrix.m22() + axis.x() * matrix.m21()) / scaleY);

    ObjectTransform transform;
    transform.setAnchor(anchor);
    transform.setScale({scaleX, scaleY});
    transform.setShear({qRadiansToDegrees(shearX), 0.0});
    transform.setRotation(qRadiansToDegrees(std::atan2(axis.y(), axis.x())));
    const QPointF pivot = transform.anchorPoint(localRect);
    transform.setPosition({matrix.dx() - pivot.x() + pivot.x() * matrix.m11() + pivot.y() * matrix.m21(),
                           matrix.dy() - pivot.y() + pivot.x() * matrix.m12() + pivot.y() * matrix.m22()});
    return transform;
}

bool operator==(const ObjectTransform &a, const ObjectTransform &b)
{
    return fuzzyEqual(a.m_position, b.m_position) && fuzzyEqual(a.m_scale, b.m_scale)
        && fuzzyEqual(a.m_shear, b.m_shear) && fuzzyEqual(a.m_anchor, b.m_anchor) && a.m_rotation == b.m_rotation;
}

} // namespace zm
