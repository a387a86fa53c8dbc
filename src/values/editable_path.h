#pragma once

#include <QList>
#include <QPainterPath>
#include <QPointF>
#include <QString>
#include <QUuid>

#include <optional>

namespace zm {

/// A random id, as QUuid::createUuid() makes, which however asks the system for every one: a hundred times as long as
/// drawing the node.
QUuid newNodeId();

/// A point of a node path with its Bézier handles, in local units. A handle that is not in use is ignored.
struct EditablePathNode
{
    enum class Type : qint32 { Corner = 0, Smooth = 1, Symmetric = 2 };

    QUuid id = newNodeId();
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

/// Where a node stands in its path.
struct EditablePathNodeIndex
{
    qsizetype contour = 0;
    qsizetype node = 0;

    friend bool operator==(const EditablePathNodeIndex &a, const EditablePathNodeIndex &b) = default;
};

/// Nothing when the path has no node of this id.
std::optional<EditablePathNodeIndex> findNode(const EditablePath &path, const QUuid &id);

/// The outline to draw, with the path's fill rule. A segment with one handle is a curve; a contour of a single node is
/// a lone move.
QPainterPath painterPath(const EditablePath &path);

/// What the path covers, with the squares of side 2 * handleRadius around its anchors and the handles in use. Null for
/// a path that covers nothing.
QRectF pathBounds(const EditablePath &path, double handleRadius);

/// The path moved by an offset.
EditablePath translated(const EditablePath &path, const QPointF &offset);

/// A coordinate as an SVG holds it, with twelve digits.
QString svgNumber(double value);

/// The outline in the words of an SVG path, "M x y L x y C x y x y x y".
QString svgPathText(const QPainterPath &outline);

/// The path without contours that have no node.
EditablePath withoutEmptyContours(const EditablePath &path);

/// The path as a document can hold it: nodes with finite coordinates and known types, ids present and unique, and no
/// more contours and nodes than a file takes.
EditablePath cleanedPath(EditablePath path);

/// The bytes that an undo step holding the path answers for: capacities, not sizes, since those are what is allocated.
qint64 memoryBytes(const EditablePath &path);

} // namespace zm
