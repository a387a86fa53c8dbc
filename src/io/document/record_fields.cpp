#include "io/document/record_fields.h"

#include "io/document/file_message.h"

#include <algorithm>
#include <limits>

namespace zm {

namespace {

constexpr qsizetype kFloatSize = 4;
constexpr qsizetype kUuidSize = 16;

} // namespace

std::optional<QColor> colorAt(QByteArrayView record, qsizetype offset, Error &error)
{
    float channels[4];
    for (float &channel : channels) {
        channel = numberAt<float>(record, offset);
        offset += kFloatSize;
        if (!(channel >= 0.0F && channel <= 1.0F)) // NaN is neither
            return error.fail(FileMessage::tr("The .zelmora file contains an invalid color."));
    }
    return QColor::fromRgbF(channels[0], channels[1], channels[2], channels[3]);
}

std::optional<QUuid> uuidAt(QByteArrayView record, qsizetype offset, Error &error)
{
    const QUuid id = QUuid::fromRfc4122(record.sliced(offset, kUuidSize));
    if (id.isNull())
        return error.fail(FileMessage::tr("The .zelmora file contains a null object identifier."));
    return id;
}

std::optional<QString> keyAt(QByteArrayView record, qsizetype offset, Error &error)
{
    const QByteArrayView field = record.sliced(offset, kKeyFieldSize);
    const auto end = std::ranges::find(field, '\0');
    if (std::ranges::any_of(field.begin(), end, [](char byte) { return uchar(byte) > 127; }))
        return error.fail(FileMessage::tr("A registry key is not valid 7-bit ASCII."));
    if (end == field.end() || end == field.begin())
        return error.fail(FileMessage::tr("A registry key is empty or not null-terminated."));
    if (std::ranges::any_of(end, field.end(), [](char byte) { return byte != '\0'; }))
        return error.fail(FileMessage::tr("A registry key has nonzero padding."));
    return QString::fromLatin1(field.first(end - field.begin()));
}

void setPoint(QByteArray &record, qsizetype offset, const QPointF &point)
{
    setF64(record, offset, point.x());
    setF64(record, offset + qsizetype(sizeof(double)), point.y());
}

void setColor(QByteArray &record, qsizetype offset, const QColor &color)
{
    const QColor rgb = (color.isValid() ? color : QColor(Qt::transparent)).toRgb();
    for (const float channel : {rgb.redF(), rgb.greenF(), rgb.blueF(), rgb.alphaF()}) {
        setNumber(record, offset, channel);
        offset += kFloatSize;
    }
}

void setUuid(QByteArray &record, qsizetype offset, const QUuid &id)
{
    record.replace(offset, kUuidSize, id.toRfc4122());
}

bool setKey(QByteArray &record, qsizetype offset, const QString &key, Error &error)
{
    const QByteArray bytes = key.toLatin1();
    if (bytes.isEmpty() || bytes.size() >= kKeyFieldSize || QString::fromLatin1(bytes) != key)
        return error.fail(FileMessage::tr("A filter or parameter key does not fit its 32-byte field."));
    if (std::ranges::any_of(bytes, [](char byte) { return byte == '\0' || uchar(byte) > 127; }))
        return error.fail(FileMessage::tr("Filter and parameter keys must use 7-bit ASCII."));
    record.replace(offset, bytes.size(), bytes);
    return true;
}

bool setSize(QByteArray &record, qsizetype offset, qsizetype size, Error &error)
{
    if (size > qsizetype(std::numeric_limits<quint32>::max()))
        return error.fail(FileMessage::tr("A .zelmora record exceeds the 32-bit size limit."));
    setU32(record, offset, quint32(size));
    return true;
}

} // namespace zm
