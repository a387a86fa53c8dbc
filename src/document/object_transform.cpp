#include "document/object_transform.h"

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

QTransform ObjectTransform::matrix(const QRectF &localRect) const
{
    const QPointF anchorPoint(localRect.left() + localRect.width() * m_anchor.x(),
                              localRect.top() + localRect.height() * m_anchor.y());
    QTransform transform;
    transform.translate(m_position.x(), m_position.y());
    transform.translate(anchorPoint.x(), anchorPoint.y());
    transform.rotate(m_rotation, Qt::ZAxis);
    transform.shear(std::tan(qDegreesToRadians(m_shear.x())), std::tan(qDegreesToRadians(m_shear.y())));
    transform.scale(m_scale.x(), m_scale.y());
    transform.translate(-anchorPoint.x(), -anchorPoint.y());
    return transform;
}

bool operator==(const ObjectTransform &a, const ObjectTransform &b)
{
    return fuzzyEqual(a.m_position, b.m_position) && fuzzyEqual(a.m_scale, b.m_scale)
        && fuzzyEqual(a.m_shear, b.m_shear) && fuzzyEqual(a.m_anchor, b.m_anchor) && a.m_rotation == b.m_rotation;
}

} // namespace zm
