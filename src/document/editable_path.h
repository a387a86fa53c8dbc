#pragma once

#include <QList>
#include <QPointF>
#include <QUuid>

namespace zm {

/// A point of a node path with its Bézier handles, in local units. A handle that is not in use is ignored.
struct EditablePathNode
{
    enum class Type : qint32 { Corner = 0, Smooth = 1, Symmetric = 2 };

    QUuid id = QUuid::createUuid();
    QPointF anchor;
    QPointF inControl;
    QPointF outControl;
    Type type = Type::Corner;
    bool hasInControl = false;
    bool hasOutControl = false;

    friend bool operator==(const EditablePathNode &a, const EditablePathNode &b) = default;
};

/// Nodes in order; when closed, the last joins the first.
struct EditablePathContour
{
    QList<EditablePathNode> nodes;
    bool closed = false;

    friend bool operator==(const EditablePathContour &a, const EditablePathContour &b) = default;
};

/// The node outline behind path shapes and raster selections. A plain value.
struct EditablePath
{
    QList<EditablePathContour> contours;
    Qt::FillRule fillRule = Qt::WindingFill;

    /// True when no contour has a node.
    bool isEmpty() const;

    friend bool operator==(const EditablePath &a, const EditablePath &b) = default;
};

/// The path without contours that have no node.
EditablePath withoutEmptyContours(const EditablePath &path);

/// The bytes that an undo step holding the path answers for: capacities, not sizes, since those are what is allocated.
qint64 memoryBytes(const EditablePath &path);

} // namespace zm
