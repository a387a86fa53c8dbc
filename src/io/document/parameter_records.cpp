#include "io/document/parameter_records.h"

#include "io/document/file_message.h"

#include <array>

namespace zm {

namespace {

constexpr qsizetype kHeaderSize = 64;
constexpr qsizetype kLightListHeaderSize = 32;
constexpr qsizetype kLightSize = 96;

// The numbers of the compound values, in the order of the file.
constexpr std::array kGradientNumbers{&GradientPosition::x1, &GradientPosition::y1, &GradientPosition::x2,
                                      &GradientPosition::y2};
constexpr std::array kMaskNumbers{&MaskTransform::x,      &MaskTransform::y,        &MaskTransform::scaleX,
                                  &MaskTransform::scaleY, &MaskTransform::rotation, &MaskTransform::pivotX,
                                  &MaskTransform::pivotY};
constexpr std::array kLightNumbers{&LightSource::x,     &LightSource::y,         &LightSource::radius,
                                   &LightSource::angle, &LightSource::intensity, &LightSource::softness};
constexpr qsizetype kMaskModeOffset = qsizetype(kMaskNumbers.size() * sizeof(double));

template<typename Value, size_t count>
void setNumbers(QByteArray &record, qsizetype offset, const Value &value,
                const std::array<double Value::*, count> &numbers)
{
    for (const auto number : numbers) {
        setF64(record, offset, value.*number);
        offset += qsizetype(sizeof(double));
    }
}

template<typename Value, size_t count>
void readNumbers(QByteArrayView record, qsizetype offset, Value &value,
                 const std::array<double Value::*, count> &numbers)
{
    for (const auto number : numbers) {
        value.*number = f64At(record, offset);
        offset += qsizetype(sizeof(double));
    }
}

// Fills the bytes, which come as zeros in the size of their kind.
struct ValueEncoder
{
    QByteArray &bytes;
    Error &error;

    void operator()(bool value) const { setU32(bytes, 0, value ? 1 : 0); }
    void operator()(qint64 value) const { setNumber(bytes, 0, value); }
    void operator()(double value) const { setF64(bytes, 0, value); }
    void operator()(const QColor &color) const { setColor(bytes, 0, color); }
    void operator()(const QString &text) const
    {
        bytes = text.toUtf8();
        if (bytes.size() > kMaximumFileTextSize)
            error.fail(FileMessage::tr("A parameter string value is too large."));
    }
    void operator()(const AssetName &asset) const
    {
        bytes.fill('\0', kKeyFieldSize);
        setKey(bytes, 0, asset.fileName, error);
    }
    void operator()(const EnabledColor &value) const
    {
        setU32(bytes, 0, value.enabled ? 1 : 0);
        setColor(bytes, 4, value.color);
    }
    void operator()(const Stroke &stroke) const
    {
        setColor(bytes, 0, stroke.color);
        setF64(bytes, 16, stroke.width);
    }
    void operator()(const GradientPosition &position) const { setNumbers(bytes, 0, position, kGradientNumbers); }
    void operator()(const MaskTransform &mask) const
    {
        setNumbers(bytes, 0, mask, kMaskNumbers);
        setU32(bytes, kMaskModeOffset, mask.mode == MaskTransform::Mode::Uniform ? 1 : 2);
    }
    void operator()(const ShapeMask &mask) const { (*this)(mask.generatorId); }
    void operator()(const LightSources &lights) const
    {
        if (lights.size() > kMaximumLightSources) {
            error.fail(FileMessage::tr("A light list contains too many lights."));
            return;
        }
        bytes.fill('\0', kLightListHeaderSize + kLightSize * lights.size());
        setU32(bytes, 0, quint32(lights.size()));
        qsizetype offset = kLightListHeaderSize;
        for (const LightSource &light : lights) {
            const auto shape = quint32(light.shape);
            setUuid(bytes, offset, light.id);
            setNumbers(bytes, offset + 16, light, kLightNumbers);
            setColor(bytes, offset + 64, light.tint);
            setU32(bytes, offset + 80, shape < kLightShapeNames.size() ? shape + 1 : 1);
            offset += kLightSize;
        }
    }
};

using DecodedValue = std::optional<ParameterValue>;

DecodedValue decodeBoolean(QByteArrayView bytes, Error &)
{
    const quint32 value = u32At(bytes, 0);
    return value <= 1 ? DecodedValue(value == 1) : std::nullopt;
}

DecodedValue decodeInteger(QByteArrayView bytes, Error &)
{
    return numberAt<qint64>(bytes, 0);
}

DecodedValue decodeReal(QByteArrayView bytes, Error &)
{
    return f64At(bytes, 0);
}

DecodedValue decodeColor(QByteArrayView bytes, Error &error)
{
    return colorAt(bytes, 0, error);
}

DecodedValue decodeString(QByteArrayView bytes, Error &)
{
    return bytes.size() <= kMaximumFileTextSize ? DecodedValue(QString::fromUtf8(bytes)) : std::nullopt;
}

DecodedValue decodeAsset(QByteArrayView bytes, Error &error)
{
    if (bytes.size() != kKeyFieldSize) {
        error.fail(FileMessage::tr("An asset parameter has an invalid byte length."));
        return std::nullopt;
    }
    const std::optional<QString> fileName = keyAt(bytes, 0, error);
    return fileName ? DecodedValue(AssetName{*fileName}) : std::nullopt;
}

DecodedValue decodeEnabledColor(QByteArrayView bytes, Error &error)
{
    const quint32 enabled = u32At(bytes, 0);
    const std::optional<QColor> color = colorAt(bytes, 4, error);
    return color && enabled <= 1 ? DecodedValue(EnabledColor{enabled == 1, *color}) : std::nullopt;
}

DecodedValue decodeStroke(QByteArrayView bytes, Error &error)
{
    const std::optional<QColor> color = colorAt(bytes, 0, error);
    return color ? DecodedValue(Stroke{*color, f64At(bytes, 16)}) : std::nullopt;
}

DecodedValue decodeGradientPosition(QByteArrayView bytes, Error &)
{
    GradientPosition position;
    readNumbers(bytes, 0, position, kGradientNumbers);
    return position;
}

DecodedValue decodeMaskTransform(QByteArrayView bytes, Error &)
{
    MaskTransform mask;
    readNumbers(bytes, 0, mask, kMaskNumbers);
    const quint32 mode = u32At(bytes, kMaskModeOffset);
    mask.mode = mode == 1 ? MaskTransform::Mode::Uniform : MaskTransform::Mode::Free;
    return mode == 1 || mode == 2 ? DecodedValue(mask) : std::nullopt;
}

DecodedValue decodeShapeMask(QByteArrayView bytes, Error &error)
{
    const DecodedValue generatorId = decodeString(bytes, error);
    return generatorId ? DecodedValue(ShapeMask{std::get<QString>(*generatorId)}) : std::nullopt;
}

DecodedValue decodeLightSources(QByteArrayView bytes, Error &error)
{
    if (bytes.size() < kLightListHeaderSize)
        return std::nullopt;
    const quint32 count = u32At(bytes, 0);
    if (count > kMaximumLightSources || bytes.size() != kLightListHeaderSize + kLightSize * qsizetype(count))
        return std::nullopt;
    LightSources lights;
    for (QByteArrayView rest = bytes.sliced(kLightListHeaderSize); !rest.isEmpty(); rest = rest.sliced(kLightSize)) {
        const std::optional<QUuid> id = uuidAt(rest, 0, error);
        const std::optional<QColor> tint = colorAt(rest, 64, error);
        const quint32 shape = u32At(rest, 80);
        if (!id || !tint || shape < 1 || shape > kLightShapeNames.size())
            return std::nullopt;
        LightSource light{.id = *id, .shape = LightSource::Shape(shape - 1), .tint = *tint};
        readNumbers(rest, 16, light, kLightNumbers);
        lights.append(light);
    }
    return lights;
}

// How one kind of value stands in a file.
struct ValueKind
{
    /// Bytes; 0 when it depends on the value.
    qsizetype size;
    DecodedValue (*decode)(QByteArrayView bytes, Error &error);
    /// What is said of a value that cannot be; null where there is none, or where its fields say it.
    const char *unreadable;
    const char *unwritable;
};

/// By ParameterValue's alternative; the code in the file is one more.
constexpr std::array<ValueKind, std::variant_size_v<ParameterValue>> kValueKinds{{
    {4, decodeBoolean, QT_TRANSLATE_NOOP("ZelmoraDocumentIO", "A Boolean parameter is invalid."), nullptr},
    {8, decodeInteger, nullptr, nullptr},
    {8, decodeReal, QT_TRANSLATE_NOOP("ZelmoraDocumentIO", "A real parameter is not finite."),
     QT_TRANSLATE_NOOP("ZelmoraDocumentIO", "A parameter contains a non-finite number.")},
    {16, decodeColor, nullptr, nullptr},
    {0, decodeString, QT_TRANSLATE_NOOP("ZelmoraDocumentIO", "A parameter string value is too large."), nullptr},
    {0, decodeAsset, QT_TRANSLATE_NOOP("ZelmoraDocumentIO", "An asset parameter must be a file name, not a path."),
     QT_TRANSLATE_NOOP("ZelmoraDocumentIO", "An asset parameter must be a file name, not a path.")},
    {20, decodeEnabledColor, QT_TRANSLATE_NOOP("ZelmoraDocumentIO", "An enabled-color parameter is invalid."), nullptr},
    {24, decodeStroke, QT_TRANSLATE_NOOP("ZelmoraDocumentIO", "A stroke parameter is invalid."),
     QT_TRANSLATE_NOOP("ZelmoraDocumentIO", "A stroke contains an invalid width.")},
    {32, decodeGradientPosition, QT_TRANSLATE_NOOP("ZelmoraDocumentIO", "A gradient parameter is invalid."),
     QT_TRANSLATE_NOOP("ZelmoraDocumentIO", "A gradient contains a non-finite position.")},
    {64, decodeMaskTransform, QT_TRANSLATE_NOOP("ZelmoraDocumentIO", "A mask transform is invalid."),
     QT_TRANSLATE_NOOP("ZelmoraDocumentIO", "A mask contains a non-finite transform.")},
    {0, decodeShapeMask, QT_TRANSLATE_NOOP("ZelmoraDocumentIO", "A parameter string value is too large."), nullptr},
    {0, decodeLightSources, QT_TRANSLATE_NOOP("ZelmoraDocumentIO", "A light list parameter is invalid."),
     QT_TRANSLATE_NOOP("ZelmoraDocumentIO", "A light list contains an invalid light.")},
}};

std::optional<QByteArray> encodeValue(const ParameterValue &value, Error &error)
{
    const ValueKind &kind = kValueKinds[value.index()];
    QByteArray bytes(kind.size, '\0');
    std::visit(ValueEncoder{bytes, error}, value);
    // ParameterValues takes no such value, but a file that its own reader refuses would be lost work.
    if (kind.unwritable && !isStorable(value))
        error.fail(FileMessage::tr(kind.unwritable));
    return error.isSet() ? std::nullopt : std::optional(bytes);
}

bool addDecodedValue(ParameterValues &values, const QString &key, quint32 type, QByteArrayView bytes, Error &error)
{
    if (type < 1 || type > kValueKinds.size())
        return error.fail(FileMessage::tr("The .zelmora file uses an unknown parameter type."));
    const ValueKind &kind = kValueKinds[type - 1];
    if (kind.size != 0 && bytes.size() != kind.size)
        return error.fail(FileMessage::tr("A parameter value has an invalid byte length."));
    const DecodedValue value = kind.decode(bytes, error);
    if (!value || !isStorable(*value))
        return error.fail(FileMessage::tr(kind.unreadable));
    if (values.contains(key))
        return error.fail(FileMessage::tr("A parameter key is duplicated."));
    return values.set(key, *value);
}

} // namespace

std::optional<QByteArray> encodeParameters(const ParameterValues &values, const QSet<QString> &leftOut, quint32 *count,
                                           Error &error)
{
    QByteArray block;
    *count = 0;
    for (const auto &[key, value] : values.entries().asKeyValueRange()) {
        if (leftOut.contains(key))
            continue;
        QByteArray header(kHeaderSize, '\0');
        setU32(header, 0, quint32(value.index() + 1));
        if (!setKey(header, 4, key, error))
            return std::nullopt;
        const std::optional<QByteArray> bytes = encodeValue(value, error);
        if (!bytes || !setSize(header, 36, bytes->size(), error))
            return std::nullopt;
        block += header;
        block += *bytes;
        ++*count;
    }
    return block;
}

std::optional<ParameterValues> decodeParameters(ByteReader &reader, quint32 count, Error &error)
{
    if (count > kMaximumFileCount)
        return error.fail(FileMessage::tr("A parameter collection is too large."));
    ParameterValues values;
    for (quint32 i = 0; i < count; ++i) {
        const std::optional<QByteArrayView> header = reader.take(kHeaderSize);
        if (!header)
            return error.fail(FileMessage::tr("A parameter header is truncated."));
        const std::optional<QString> key = keyAt(*header, 4, error);
        const std::optional<QByteArrayView> bytes = reader.take(u32At(*header, 36));
        if (!key || !bytes)
            return error.fail(FileMessage::tr("A parameter value is truncated."));
        if (!addDecodedValue(values, *key, u32At(*header, 0), *bytes, error))
            return std::nullopt;
    }
    return values;
}

} // namespace zm
