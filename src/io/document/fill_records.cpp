#include "io/document/fill_records.h"

#include "base/sanitize.h"
#include "io/document/file_message.h"
#include "io/document/parameter_records.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zm {

namespace {

constexpr qsizetype kHeaderSize = 128;
constexpr qsizetype kTransformOffset = 48;
constexpr qsizetype kGradientHeaderSize = 64;
constexpr qsizetype kStopSize = 32;
/// A gradient of two colours as former versions wrote it.
constexpr qsizetype kOldGradientSize = 80;
constexpr quint32 kFewestStops = 2;
constexpr quint32 kLastMapping = 3;

enum FillKind : quint32 { SolidKind = 1, TextureKind = 2, GradientKind = 3 };

std::array<double, 9> numbersOf(const QTransform &t)
{
    return {t.m11(), t.m12(), t.m13(), t.m21(), t.m22(), t.m23(), t.m31(), t.m32(), t.m33()};
}

bool areFinite(const std::array<double, 9> &numbers)
{
    return std::ranges::all_of(numbers, [](double number) { return std::isfinite(number); });
}

void setTransform(QByteArray &record, const QTransform &transform)
{
    qsizetype offset = kTransformOffset;
    for (const double number : numbersOf(transform)) {
        setF64(record, offset, number);
        offset += qsizetype(sizeof(double));
    }
}

bool isStop(double position)
{
    return position >= 0.0 && position <= 1.0; // NaN is neither
}

// Each of these writes its part of the header and appends the body.

bool writeGradient(QByteArray &record, const GradientFill &gradient, Error &error)
{
    if (gradient.type != GradientType::Linear && gradient.type != GradientType::Radial)
        return error.fail(FileMessage::tr("A gradient fill uses an unsupported type."));
    if (!isFinite(gradient.start) || !isFinite(gradient.end))
        return error.fail(FileMessage::tr("A gradient fill has an invalid position."));
    if (gradient.stops.size() < kFewestStops || gradient.stops.size() > kMaximumGradientStops)
        return error.fail(FileMessage::tr("A gradient fill has an invalid stop count."));
    setU32(record, 4, GradientKind);
    qsizetype at = kHeaderSize;
    record.resize(at + kGradientHeaderSize + gradient.stops.size() * kStopSize, '\0');
    setU32(record, at, quint32(gradient.type) + 1);
    setU32(record, at + 4, quint32(gradient.stops.size()));
    setPoint(record, at + 8, gradient.start);
    setPoint(record, at + 24, gradient.end);
    at += kGradientHeaderSize;
    for (const GradientStop &stop : gradient.stops) {
        if (!isStop(stop.position))
            return error.fail(FileMessage::tr("A gradient fill has an invalid color stop."));
        setF64(record, at, stop.position);
        setColor(record, at + 8, stop.color);
        at += kStopSize;
    }
    return true;
}

bool writeTexture(QByteArray &record, const TextureFill &texture, Error &error)
{
    if (texture.mapping > kLastMapping)
        return error.fail(FileMessage::tr("A fill uses an unsupported texture mapping."));
    if (!areFinite(numbersOf(texture.transform)))
        return error.fail(FileMessage::tr("A texture fill has an invalid transform."));
    const QByteArray generatorId = texture.generatorId.toUtf8();
    if (generatorId.size() > kMaximumFileTextSize)
        return error.fail(FileMessage::tr("A fill generator ID is too large."));
    quint32 count = 0;
    const std::optional<QByteArray> parameters = encodeParameters(texture.parameters, {}, &count, error);
    if (!parameters)
        return Failure();
    setU32(record, 4, TextureKind);
    setU32(record, 8, texture.mapping + 1);
    setU32(record, 32, quint32(generatorId.size()));
    setU32(record, 36, count);
    setTransform(record, texture.transform);
    record.append(generatorId).append(*parameters);
    return true;
}

// Each of these reads the body, whose size the header tells rightly.

std::optional<Fill> decodeSolid(QByteArrayView header, Error &error)
{
    if (u32At(header, 32) != 0 || u32At(header, 36) != 0 || u32At(header, 40) != 0 || u32At(header, 44) != 0)
        return error.fail(FileMessage::tr("A solid fill contains unexpected data."));
    const std::optional<QColor> color = colorAt(header, 16, error);
    if (!color)
        return Failure();
    return Fill(*color);
}

std::optional<Fill> decodeTexture(QByteArrayView header, QByteArrayView body, Error &error)
{
    const quint32 idSize = u32At(header, 32);
    if (u32At(header, 40) != 0 || idSize > quint64(body.size()) || idSize > kMaximumFileTextSize)
        return error.fail(FileMessage::tr("A texture fill record is invalid."));
    TextureFill texture;
    texture.generatorId = QString::fromUtf8(body.first(idSize));
    ByteReader reader(body.sliced(idSize));
    std::optional<ParameterValues> parameters = decodeParameters(reader, u32At(header, 36), error);
    if (!parameters)
        return Failure();
    texture.parameters = std::move(*parameters);
    if (!reader.atEnd())
        return error.fail(FileMessage::tr("A texture parameter block has trailing data."));
    std::array<double, 9> m;
    for (qsizetype i = 0; i < qsizetype(m.size()); ++i)
        m[i] = f64At(header, kTransformOffset + i * qsizetype(sizeof(double)));
    if (!areFinite(m))
        return error.fail(FileMessage::tr("A texture fill transform or size is invalid."));
    texture.transform = QTransform(m[0], m[1], m[2], m[3], m[4], m[5], m[6], m[7], m[8]);
    texture.mapping = u32At(header, 8) - 1;
    return Fill(texture);
}

std::optional<Fill> decodeOldGradient(QByteArrayView body, Error &error)
{
    const auto type = enumAt<GradientType>(body, 0, 1, 2);
    if (!type)
        return error.fail(FileMessage::tr("A gradient fill uses an unsupported type."));
    const std::optional<QColor> startColor = colorAt(body, 4, error);
    const std::optional<QColor> endColor = colorAt(body, 20, error);
    if (!startColor || !endColor)
        return Failure();
    const GradientFill gradient{*type, pointAt(body, 36), pointAt(body, 52), {{0.0, *startColor}, {1.0, *endColor}}};
    if (!isFinite(gradient.start) || !isFinite(gradient.end))
        return error.fail(FileMessage::tr("A gradient fill has an invalid position."));
    return Fill(gradient);
}

std::optional<Fill> decodeGradient(QByteArrayView header, QByteArrayView body, Error &error)
{
    const auto invalid = [&error] { return error.fail(FileMessage::tr("A gradient fill record is invalid.")); };
    if (u32At(header, 32) != 0 || u32At(header, 36) != 0 || u32At(header, 40) != 0 || body.size() < kGradientHeaderSize)
        return invalid();
    if (body.size() == kOldGradientSize)
        return decodeOldGradient(body, error);
    GradientFill gradient{GradientType::Linear, pointAt(body, 8), pointAt(body, 24), {}};
    const quint32 stopCount = u32At(body, 4);
    if (stopCount < kFewestStops || stopCount > kMaximumGradientStops
        || body.size() != kGradientHeaderSize + qsizetype(stopCount) * kStopSize || !isFinite(gradient.start)
        || !isFinite(gradient.end))
        return invalid();
    const auto type = enumAt<GradientType>(body, 0, 1, 2);
    if (!type)
        return error.fail(FileMessage::tr("A gradient fill uses an unsupported type."));
    gradient.type = *type;
    gradient.stops.reserve(stopCount);
    for (qsizetype at = kGradientHeaderSize; at < body.size(); at += kStopSize) {
        const double position = f64At(body, at);
        const std::optional<QColor> color = colorAt(body, at + 8, error);
        if (!color || !isStop(position))
            return error.fail(FileMessage::tr("A gradient fill has an invalid color stop."));
        gradient.stops.append({position, *color});
    }
    return Fill(gradient);
}

} // namespace

std::optional<QByteArray> encodeFill(const Fill &fill, Error &error)
{
    QByteArray record(kHeaderSize, '\0');
    setU32(record, 0, 1);
    setU32(record, 8, 1);
    setTransform(record, QTransform());
    if (const GradientFill *gradient = fill.gradient()) {
        if (!writeGradient(record, *gradient, error))
            return Failure();
    } else if (const TextureFill *texture = fill.texture()) {
        if (!writeTexture(record, *texture, error))
            return Failure();
    } else {
        setU32(record, 4, SolidKind);
        setColor(record, 16, fill.solidColor(Qt::black));
    }
    if (!setSize(record, 44, record.size() - kHeaderSize, error))
        return Failure();
    return record;
}

std::optional<Fill> decodeFill(QByteArrayView record, Error &error)
{
    ByteReader reader(record);
    const std::optional<QByteArrayView> header = reader.take(kHeaderSize);
    if (!header || u32At(*header, 0) != 1 || u32At(*header, 4) < SolidKind || u32At(*header, 4) > GradientKind
        || u32At(*header, 44) != quint64(reader.remaining()))
        return error.fail(FileMessage::tr("A fill record is truncated or invalid."));
    if (u32At(*header, 8) < 1 || u32At(*header, 8) > kLastMapping + 1)
        return error.fail(FileMessage::tr("A fill uses an unknown texture mapping."));
    const QByteArrayView body = record.sliced(kHeaderSize);
    switch (u32At(*header, 4)) {
    case TextureKind:
        return decodeTexture(*header, body, error);
    case GradientKind:
        return decodeGradient(*header, body, error);
    default:
        return decodeSolid(*header, error);
    }
}

} // namespace zm
