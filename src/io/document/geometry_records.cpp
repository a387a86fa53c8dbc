#include "io/document/geometry_records.h"

#include "io/document/file_message.h"
#include "io/document/parameter_records.h"
#include "io/document/path_records.h"

namespace zm {

namespace {

constexpr qsizetype kHeaderSize = 32;

std::optional<QByteArray> encodeParametric(const GeneratorGeometry &geometry, Error &error)
{
    const QByteArray id = geometry.generatorId.toUtf8();
    if (id.isEmpty() || id.size() > kMaximumFileTextSize)
        return error.fail(FileMessage::tr("A shape generator ID is empty or too large."));
    quint32 count = 0;
    const std::optional<QByteArray> parameters = encodeParameters(geometry.parameters, {}, &count, error);
    if (!parameters)
        return Failure();
    QByteArray record(kHeaderSize, '\0');
    setU32(record, 0, 1);
    setU32(record, 4, quint32(id.size()));
    setU32(record, 8, count);
    if (!setSize(record, 12, id.size() + parameters->size(), error))
        return Failure();
    return record + id + *parameters;
}

std::optional<ShapeGeometry> decodeParametric(QByteArrayView record, Error &error)
{
    ByteReader reader(record);
    const std::optional<QByteArrayView> header = reader.take(kHeaderSize);
    const auto invalid = [&error] { return error.fail(FileMessage::tr("A parametric shape record is invalid.")); };
    if (!header || u32At(*header, 0) != 1 || u32At(*header, 4) > kMaximumFileTextSize
        || u32At(*header, 12) != quint64(reader.remaining()))
        return invalid();
    const std::optional<QByteArrayView> id = reader.take(u32At(*header, 4));
    if (!id)
        return invalid();
    if (id->isEmpty())
        return error.fail(FileMessage::tr("A shape generator ID is empty."));
    std::optional<ParameterValues> parameters = decodeParameters(reader, u32At(*header, 8), error);
    if (!parameters)
        return Failure();
    if (!reader.atEnd())
        return error.fail(FileMessage::tr("A parametric shape has trailing data."));
    return GeneratorGeometry{QString::fromUtf8(*id), std::move(*parameters)};
}

} // namespace

GeometryType geometryType(const ShapeGeometry &geometry)
{
    return std::holds_alternative<EditablePath>(geometry) ? GeometryType::Path : GeometryType::Parametric;
}

std::optional<QByteArray> encodeGeometry(const ShapeGeometry &geometry, Error &error)
{
    if (const auto *path = std::get_if<EditablePath>(&geometry))
        return encodePath(*path, error);
    return encodeParametric(std::get<GeneratorGeometry>(geometry), error);
}

std::optional<ShapeGeometry> decodeGeometry(quint32 type, QByteArrayView record, Error &error)
{
    switch (GeometryType(type)) {
    case GeometryType::Parametric:
        return decodeParametric(record, error);
    case GeometryType::Path:
        return decodePath(record, error);
    }
    return error.fail(FileMessage::tr("A shape uses an unknown geometry type."));
}

} // namespace zm
