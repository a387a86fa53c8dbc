#include "values/editable_path_builder.h"

#include "base/fuzzy.h"
#include "base/geometry.h"

namespace zm {

namespace {

EditablePathNode nodeAt(const QPointF &anchor)
{
    EditablePathNode node;
    node.anchor = anchor;
    node.inControl = anchor;
    node.outControl = anchor;
    return node;
}

bool runsStraightThrough(const EditablePathNode &node)
{
    if (!node.hasInControl || !node.hasOutControl)
        return false;
    const QPointF in = node.anchor - node.inControl;
    const QPointF out = node.outControl - node.anchor;
    const double lengths = lengthOf(in) * lengthOf(out);
    // The cosine of an angle below a third of a degree, which the eye does not see as a corner.
    constexpr double straightCosine = 0.99998;
    return QPointF::dotProduct(in, out) >= straightCosine * lengths;
}

} // namespace

void EditablePathBuilder::moveTo(const QPointF &point)
{
    m_path.contours.append(EditablePathContour{{nodeAt(point)}, false});
}

void EditablePathBuilder::lineTo(const QPointF &point)
{
    nodes().append(nodeAt(point));
}

void EditablePathBuilder::curveTo(const QPointF &firstControl, const QPointF &secondControl, const QPointF &point)
{
    EditablePathNode &from = nodes().last();
    from.outControl = firstControl;
    from.hasOutControl = firstControl != from.anchor;
    EditablePathNode to = nodeAt(point);
    to.inControl = secondControl;
    to.hasInControl = secondControl != point;
    nodes().append(to);
}

bool EditablePathBuilder::isBackAtStart() const
{
    if (m_path.contours.isEmpty() || m_path.contours.last().closed)
        return false;
    const QList<EditablePathNode> &nodes = m_path.contours.last().nodes;
    return nodes.size() > 2 && fuzzyEqual(nodes.first().anchor, nodes.last().anchor);
}

void EditablePathBuilder::close()
{
    if (isBackAtStart()) {
        const EditablePathNode end = nodes().takeLast();
        nodes().first().inControl = end.inControl;
        nodes().first().hasInControl = end.hasInControl;
    }
    m_path.contours.last().closed = true;
}

EditablePath EditablePathBuilder::path() const
{
    EditablePath path = m_path;
    for (EditablePathContour &contour : path.contours) {
        for (EditablePathNode &node : contour.nodes) {
            if (runsStraightThrough(node))
                node.type = EditablePathNode::Type::Smooth;
        }
    }
    return path;
}

EditablePath editablePath(const QPainterPath &outline)
{
    EditablePathBuilder builder(outline.fillRule());
    for (int i = 0; i < outline.elementCount(); ++i) {
        const QPainterPath::Element element = outline.elementAt(i);
        if (element.isMoveTo()) {
            builder.moveTo(element);
        } else if (element.isLineTo()) {
            builder.lineTo(element);
        } else if (element.isCurveTo() && i + 2 < outline.elementCount()) {
            builder.curveTo(element, outline.elementAt(i + 1), outline.elementAt(i + 2));
            i += 2;
        }
        const bool endsSubpath = i + 1 == outline.elementCount() || outline.elementAt(i + 1).isMoveTo();
        if (endsSubpath && builder.isBackAtStart())
            builder.close();
    }
    return builder.path();
}

} // namespace zm
