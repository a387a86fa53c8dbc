#pragma once

#include "values/editable_path.h"

namespace zm {

/// Draws an EditablePath stroke by stroke, as QPainterPath is drawn, and knows its nodes: every point becomes one node,
/// and a closed contour keeps one node where it began and ended.
class EditablePathBuilder
{
public:
    explicit EditablePathBuilder(Qt::FillRule fillRule = Qt::WindingFill) { m_path.fillRule = fillRule; }

    /// Begins a new contour.
    void moveTo(const QPointF &point);
    void lineTo(const QPointF &point);
    /// A cubic curve. A control that lies on its own end is no handle.
    void curveTo(const QPointF &firstControl, const QPointF &secondControl, const QPointF &point);
    /// Joins the contour's end with its start, along a straight line unless they coincide.
    void close();

    /// The contour has come back to its first point by at least two segments.
    bool isBackAtStart() const;

    /// What was drawn. A node whose two handles lie on one line through it is smooth, every other a corner.
    EditablePath path() const;

private:
    QList<EditablePathNode> &nodes() { return m_path.contours.last().nodes; }

    EditablePath m_path;
};

/// Nodes for a drawn outline, with new ids and the outline's fill rule. A subpath that ends where it began is closed; a
/// node whose handles lie on one line is smooth.
EditablePath editablePath(const QPainterPath &outline);

} // namespace zm
