#pragma once

#include "generators/cubic_curve.h"
#include "values/editable_path.h"

namespace zm {

/// A closed contour of straight and curved sides, drawn like a path, whose corners are rounded at the end. Sides that
/// meet smoothly stay as they are.
class CorneredOutline
{
public:
    explicit CorneredOutline(const QPointF &start);

    void lineTo(const QPointF &point);
    void curveTo(const QPointF &firstControl, const QPointF &secondControl, const QPointF &point);

    /// The closed outline. Every corner becomes an arc of this radius, or of the largest one for which its sides have
    /// room; corners sharper than a right angle lose no more of their sides than a right angle does, so that points
    /// stay where they are meant to be. 0 or less keeps the corners.
    EditablePath rounded(double radius) const;

private:
    struct Side
    {
        CubicCurve curve;
        bool isStraight;
    };

    QPointF end() const { return m_sides.isEmpty() ? m_start : m_sides.last().curve.end; }

    QPointF m_start;
    QList<Side> m_sides;
};

} // namespace zm
