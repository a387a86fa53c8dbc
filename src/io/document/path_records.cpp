#include "io/document/path_records.h"

#include "base/sanitize.h"
#include "io/document/file_message.h"

#include <QSet>

#include <limits>

namespace zm {

namespace {

constexpr qsizetype kPathHeaderSize = 32;
constexpr qsizetype kContourHeaderSize = 32;
constexpr qsizetype kNodeSize = 80;
static_assert(kMaximumFileCount * kNodeSize <= std::numeric_limits<quint32>::max(),
              "the nodes of a contour fit the sizes of a file");

constexpr quint32 kWindingFill = 1;
constexpr quint32 kOddEvenFill = 2;
constexpr quint32 kClosed = 1;
constexpr quint32 kHasInControl = 1;
constexpr quint32 kHasOutControl = 2;

bool hasFinitePoints(const EditablePathNode &node)
{
    return isFinite(node.anchor) && isFinite(node.inControl) && isFinite(node.outControl);
}

bool appendNode(QByteArray &record, const EditablePathNode &node, QSet<QUuid> &ids, Error &error)
{
    if (node.id.isNull() || !hasFinitePoints(node))
        return error.fail(FileMessage::tr("An editable path node is invalid."));
    if (ids.contains(node.id)) // could not be read again
        return error.fail(FileMessage::tr("An editable path node ID is duplicated."));
    ids.insert(node.id);
    QByteArray bytes(kNodeSize, '\0');
    setUuid(bytes, 0, node.id);
    setU32(bytes, 16, quint32(node.type) + 1);
    setU32(bytes, 20, (node.hasInControl ? kHasInControl : 0) | (node.hasOutControl ? kHasOutControl : 0));
    setPoint(bytes, 24, node.anchor);
    setPoint(bytes, 40, node.inControl);
    setPoint(bytes, 56, node.outControl);
    record.append(bytes);
    return true;
}

std::optional<EditablePathNode> decodeNode(QByteArrayView bytes, QSet<QUuid> &ids, Error &error)
{
    const std::optional<QUuid> id = uuidAt(bytes, 0, error);
    if (!id)
        return Failure();
    EditablePathNode node{*id, pointAt(bytes, 24), pointAt(bytes, 40), pointAt(bytes, 56)};
    if (!hasFinitePoints(node))
        return error.fail(FileMessage::tr("An editable path node is invalid."));
    if (ids.contains(*id))
        return error.fail(FileMessage::tr("An editable path node ID is duplicated."));
    ids.insert(*id);
    const auto type = enumAt<EditablePathNode::Type>(bytes, 16, 1, 3);
    if (!type)
        return error.fail(FileMessage::tr("An editable path node uses an unknown type."));
    node.type = *type;
    node.hasInControl = u32At(bytes, 20) & kHasInControl;
    node.hasOutControl = u32At(bytes, 20) & kHasOutControl;
    return node;
}

std::optional<EditablePathContour> takeContour(ByteReader &reader, QSet<QUuid> &ids, Error &error)
{
    const std::optional<QByteArrayView> header = reader.take(kContourHeaderSize);
    if (!header || u32At(*header, 4) > kMaximumFileCount || u32At(*header, 8) != quint64(u32At(*header, 4)) * kNodeSize)
        return error.fail(FileMessage::tr("An editable path contour is invalid."));
    const std::optional<QByteArrayView> nodes = reader.take(u32At(*header, 8));
    if (!nodes)
        return error.fail(FileMessage::tr("An editable path node is invalid."));
    EditablePathContour contour;
    contour.closed = u32At(*header, 0) & kClosed;
    contour.nodes.reserve(nodes->size() / kNodeSize);
    for (qsizetype at = 0; at < nodes->size(); at += kNodeSize) {
        const std::optional<EditablePathNode> node = decodeNode(nodes->sliced(at, kNodeSize), ids, error);
        if (!node)
            return Failure();
        contour.nodes.append(*node);
    }
    return contour;
}

} // namespace

std::optional<QByteArray> encodePath(const EditablePath &path, Error &error)
{
    if (path.contours.size() > kMaximumFileCount)
        return error.fail(FileMessage::tr("An editable path has too many contours."));
    QByteArray record(kPathHeaderSize, '\0');
    setU32(record, 0, 1);
    setU32(record, 4, path.fillRule == Qt::WindingFill ? kWindingFill : kOddEvenFill);
    setU32(record, 8, quint32(path.contours.size()));
    QSet<QUuid> ids;
    for (const EditablePathContour &contour : path.contours) {
        if (contour.nodes.size() > kMaximumFileCount)
            return error.fail(FileMessage::tr("An editable path contour has too many nodes."));
        QByteArray header(kContourHeaderSize, '\0');
        setU32(header, 0, contour.closed ? kClosed : 0);
        setU32(header, 4, quint32(contour.nodes.size()));
        setU32(header, 8, quint32(contour.nodes.size() * kNodeSize));
        record.append(header);
        for (const EditablePathNode &node : contour.nodes) {
            if (!appendNode(record, node, ids, error))
                return Failure();
        }
    }
    if (!setSize(record, 12, record.size() - kPathHeaderSize, error))
        return Failure();
    return record;
}

std::optional<EditablePath> decodePath(QByteArrayView record, Error &error)
{
    ByteReader reader(record);
    const std::optional<QByteArrayView> header = reader.take(kPathHeaderSize);
    if (!header || u32At(*header, 0) != 1 || u32At(*header, 4) < kWindingFill || u32At(*header, 4) > kOddEvenFill
        || u32At(*header, 8) > kMaximumFileCount || u32At(*header, 12) != quint64(reader.remaining()))
        return error.fail(FileMessage::tr("An editable path record is invalid."));
    EditablePath path;
    path.fillRule = u32At(*header, 4) == kWindingFill ? Qt::WindingFill : Qt::OddEvenFill;
    QSet<QUuid> ids;
    for (quint32 count = u32At(*header, 8); count > 0; --count) {
        const std::optional<EditablePathContour> contour = takeContour(reader, ids, error);
        if (!contour)
            return Failure();
        path.contours.append(*contour);
    }
    if (!reader.atEnd())
        return error.fail(FileMessage::tr("An editable path has trailing data."));
    return path;
}

} // namespace zm
