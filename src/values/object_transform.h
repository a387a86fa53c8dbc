#pragma once

#include <QPointF>
#include <QRectF>
#include <QTransform>

namespace zm {

/// Where an object lies in the document: nine numbers, cleaned by their setters. Positions are document units,
/// angles are degrees, the anchor is a fraction of the object's local rectangle.
class ObjectTransform
{
public:
    /// The smallest magnitude of a scale: an object never collapses to a line.
    static constexpr double kMinimumScale = 0.001;
    /// The tangent of a shear stays finite.
    static constexpr double kMaximumShear = 89.0;

    QPointF position() const { return m_position; }
    QPointF scale() const { return m_scale; }
    QPointF shear() const { return m_shear; }
    QPointF anchor() const { return m_anchor; }
    double rotation() const { return m_rotation; }

    /// A non-finite component becomes 0.
    void setPosition(const QPointF &position);
    /// A non-finite component becomes 1; a magnitude under kMinimumScale is raised to it and keeps its sign, negative
    /// zero included. Negative means mirrored.
    void setScale(const QPointF &scale);
    /// Degrees; a non-finite component becomes 0; limited to -kMaximumShear..kMaximumShear.
    void setShear(const QPointF &shear);
    /// A non-finite component becomes 0.5; limited to 0..1.
    void setAnchor(const QPointF &anchor);
    /// Degrees, neither wrapped nor limited; a non-finite value becomes 0.
    void setRotation(double rotation);

    /// Maps localRect's coordinates to the document: a point moves to the anchor, is scaled, sheared and rotated
    /// there, and then placed.
    QTransform matrix(const QRectF &localRect) const;

    /// The transform with that anchor whose matrix(localRect) is the given affine matrix, with no vertical shear. A
    /// matrix that flattens the rectangle comes as near as the limits above allow.
    static ObjectTransform fromMatrix(const QTransform &matrix, const QRectF &localRect, const QPointF &anchor);

    /// Fuzzy on every component but the rotation, which is compared exactly.
    friend bool operator==(const ObjectTransform &a, const ObjectTransform &b);

private:
    QPointF anchorPoint(const QRectF &localRect) const;

    QPointF m_position{0.0, 0.0};
    QPointF m_scale{1.0, 1.0};
    QPointF m_shear{0.0, 0.0};
    QPointF m_anchor{0.5, 0.5};
    double m_rotation = 0.0;
};

} // namespace zm
