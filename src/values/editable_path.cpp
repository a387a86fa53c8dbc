#include "values/editable_path.h"

#include "base/sanitize.h"

#include <QRandomGenerator>
#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// What the document file takes.
constexpr qsizetype kMaximumContours = 1'000'000;
constexpr qsizetype kMaximumNodes = 1'000'000;

void addSegment(QPainterPath &outline, const EditablePathNode &from, const EditablePathNode &to)
{
    if (!from.hasOutControl && !to.hasInControl)
        outline.lineTo(to.anchor);
    else
        outline.cubicTo(from.hasOutControl ? from.outControl : from.anchor, to.hasInControl ? to.inControl : to.anchor,
                        to.anchor);
}

bool hasFinitePoints(const EditablePathNode &node)
{
    return isFinite(node.anchor) && isFinite(node.inControl) && isFinite(node.outControl);
}

bool isKnownType(EditablePathNode::Type type)
{
    using enum EditablePathNode::Type;
    return type == Corner || type == Smooth || type == Symmetric;
}

bool isClean(const EditablePath &path)
{
    if (path.contours.size() > kMaximumContours)
        return false;
    QSet<QUuid> ids;
    for (const EditablePathContour &contour : path.contours) {
        if (contour.nodes.size() > kMaximumNodes)
            return false;
        for (const EditablePathNode &node : contour.nodes) {
            if (!hasFinitePoints(node) || !isKnownType(node.type) || node.id.isNull() || ids.contains(node.id))
                return false;
            ids.insert(node.id);
        }
    }
    return true;
}

} // namespace

QUuid newNodeId()
{
    thread_local QRandomGenerator generator = QRandomGenerator::securelySeeded();
    std::array<quint32, 4> bits;
    generator.fillRange(bits.data(), bits.size());
    QUuid id = QUuid::fromBytes(bits.data());
    // Version 4, variant 1: a random id (RFC 4122, 4.4).
    id.data3 = ushort((id.data3 & 0x0fff) | 0x4000);
    id.data4[0] = uchar((id.data4[0] & 0x3f) | 0x80);
    return id;
}

bool EditablePath::isEmpty() const
{
    return std::all_of(contours.cbegin(), contours.cend(),
                       [](const EditablePathContour &contour) { return contour.nodes.isEmpty(); });
}

std::optional<EditablePathNodeIndex> findNode(const EditablePath &path, const QUuid &id)
{
    for (qsizetype contour = 0; contour < path.contours.size(); ++contour) {
        const QList<EditablePathNode> &nodes = path.contours[contour].nodes;
        const auto found = std::ranges::find(nodes, id, &EditablePathNode::id);
        if (found != nodes.end())
            return EditablePathNodeIndex{contour, found - nodes.begin()};
    }
    return std::nullopt;
}

QPainterPath painterPath(const EditablePath &path)
{
    QPainterPath outline;
    outline.setFillRule(path.fillRule);
    for (const EditablePathContour &contour : path.contours) {
        const QList<EditablePathNode> &nodes = contour.nodes;
        if (nodes.isEmpty())
            continue;
        outline.moveTo(nodes.first().anchor);
        for (qsizetype i = 1; i < nodes.size(); ++i)
            addSegment(outline, nodes[i - 1], nodes[i]);
        if (contour.closed && nodes.size() >= 2) {
            addSegment(outline, nodes.last(), nodes.first());
            outline.closeSubpath();
        }
    }
    return outline;
}

QRectF pathBounds(const EditablePath &path, double handleRadius)
{
    if (path.isEmpty())
        return {};
    const double radius = handleRadius > 0.0 ? handleRadius : 0.0; // also for NaN
    QRectF bounds;
    const auto addSquare = [&](const QPointF &centre) {
        if (radius > 0.0)
            bounds |= QRectF(centre.x() - radius, centre.y() - radius, 2.0 * radius, 2.0 * radius);
    };
    for (const EditablePathContour &contour : path.contours) {
        for (const EditablePathNode &node : contour.nodes) {
            addSquare(node.anchor);
            if (node.hasInControl)
                addSquare(node.inControl);
            if (node.hasOutControl)
                addSquare(node.outControl);
        }
    }
    const QRectF drawn = painterPath(path).boundingRect().adjusted(-radius, -radius, radius, radius);
    return drawn.isEmpty() ? bounds : bounds | drawn;
}

EditablePath translated(const EditablePath &path, const QPointF &offset)
{
    EditablePath result = path;
    for (EditablePathContour &contour : result.contours) {
        for (EditablePathNode &node : contour.nodes) {
            node.anchor += offset;
            node.inControl += offset;
            node.outControl += offset;
        }
    }
    return result;
}

QString svgNumber(double value)
{
    return QString::number(value, 'g', 12);
}

QString svgPathText(const QPainterPath &outline)
{
    QString text;
    for (int i = 0; i < outline.elementCount(); ++i) {
        const QPainterPath::Element element = outline.elementAt(i);
        // The two elements that follow the first of a curve go on with its numbers.
        const auto command = element.isMoveTo() ? "M "_L1
            : element.isLineTo()                ? "L "_L1
            : element.isCurveTo()               ? "C "_L1
                                                : ""_L1;
        text += command + svgNumber(element.x) + u' ' + svgNumber(element.y) + u' ';
    }
    return text.trimmed();
}

EditablePath withoutEmptyContours(const EditablePath &path)
{
    EditablePath result = path;
    result.contours.removeIf([](const EditablePathContour &contour) { return contour.nodes.isEmpty(); });
    return result;
}

EditablePath cleanedPath(EditablePath path)
{
    if (isClean(path))
        return path; // and goes on sharing its nodes
    if (path.contours.size() > kMaximumContours)
        path.contours.resize(kMaximumContours);
    QSet<QUuid> ids;
    for (EditablePathContour &contour : path.contours) {
        contour.nodes.removeIf([](const EditablePathNode &node) { return !hasFinitePoints(node); });
        if (contour.nodes.size() > kMaximumNodes)
            contour.nodes.resize(kMaximumNodes);
        for (EditablePathNode &node : contour.nodes) {
            if (!isKnownType(node.type))
                node.type = EditablePathNode::Type::Corner;
            if (node.id.isNull() || ids.contains(node.id))
                node.id = newNodeId();
            ids.insert(node.id);
        }
    }
    return path;
}

qint64 memoryBytes(const EditablePath &path)
{
    // What a list and a node cost, rounded; the budget needs an estimate, not an allocator's figure.
    constexpr qint64 bytesOfList = 32;
    constexpr qint64 bytesOfNode = 72;
    qint64 bytes = bytesOfList;
    for (const EditablePathContour &contour : path.contours)
        bytes += bytesOfList + bytesOfNode * contour.nodes.capacity();
    return bytes;
}

} // namespace zm
