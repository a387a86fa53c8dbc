#include "io/document/filter_records.h"

#include "filters/filter_registry.h"
#include "io/document/file_message.h"
#include "io/document/parameter_records.h"

#include <QHash>
#include <QSet>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr qsizetype kHeaderSize = 64;
constexpr quint32 kRecordVersion = 1;
constexpr quint32 kEnabledFlag = 1;
constexpr quint32 kSelectionFlag = 2;

/// What documents keep of an effect's controls.
struct StoredControls
{
    QSet<QString> keys;
    QSet<QString> keysLeftOut;
    ParameterValues defaults;
};

QHash<QString, StoredControls> controlsOfAllFilters()
{
    QHash<QString, StoredControls> all;
    for (const std::unique_ptr<Filter> &filter : FilterRegistry::instance().filters()) {
        const QList<ParameterDefinition> definitions = filter->controls();
        if (definitions.isEmpty())
            continue;
        StoredControls &controls = all[filter->id()];
        for (const ParameterDefinition &definition : definitions) {
            const ParameterHead &head = parameterHead(definition);
            if (head.flags.testFlag(ParameterFlag::NotStored)) {
                controls.keysLeftOut.insert(head.id);
                continue;
            }
            controls.keys.insert(head.id);
            if (const std::optional<ParameterValue> value = defaultValue(definition))
                controls.defaults.set(head.id, *value);
        }
    }
    return all;
}

/// Null for an effect that this program does not know, or that has no controls: it keeps all of its values.
const StoredControls *storedControls(const QString &filterId)
{
    static const QHash<QString, StoredControls> all = controlsOfAllFilters();
    const auto found = all.constFind(filterId);
    return found == all.cend() ? nullptr : &*found;
}

/// The colour to fade to tells by its alpha what older files told by a target of its own.
void migrateFadeTarget(ParameterValues &values)
{
    const QString targetKey = u"fadeTarget"_s;
    const QString colorKey = u"fadeColor"_s;
    if (!values.contains(targetKey))
        return;
    const ParameterValue target = values.entries().value(targetKey);
    QColor color = values.color(colorKey, QColor(255, 255, 255, 0));
    if (target == ParameterValue(u"transparency"_s))
        color.setAlpha(0);
    else if (target == ParameterValue(u"color"_s))
        color.setAlpha(255);
    values.remove(targetKey);
    values.set(colorKey, color);
}

/// What the effect defines, with its defaults where the file has no value. Effects without values share one map:
/// a short record must not take a long list's memory.
ParameterValues definedValues(const QString &filterId, const ParameterValues &stored)
{
    const StoredControls *controls = storedControls(filterId);
    if (!controls)
        return stored;
    ParameterValues values = controls->defaults;
    for (const auto &[key, value] : stored.entries().asKeyValueRange()) {
        if (controls->keys.contains(key))
            values.set(key, value);
    }
    return values;
}

} // namespace

std::optional<QByteArray> encodeFilter(const FilterInstance &instance, Error &error)
{
    if (instance.instanceId.isNull())
        return error.fail(FileMessage::tr("A filter has a null instance ID."));
    QByteArray record(kHeaderSize, '\0');
    setU32(record, 0, kRecordVersion);
    setUuid(record, 4, instance.instanceId);
    setU32(record, 20, (instance.enabled ? kEnabledFlag : 0) | (instance.rasterSelectionScoped ? kSelectionFlag : 0));
    if (!setKey(record, 24, instance.filterId, error))
        return std::nullopt;
    quint32 count = 0;
    const StoredControls *controls = storedControls(instance.filterId);
    const std::optional<QByteArray> parameters =
        encodeParameters(instance.parameters, controls ? controls->keysLeftOut : QSet<QString>(), &count, error);
    if (!parameters || !setSize(record, 60, parameters->size(), error))
        return std::nullopt;
    setU32(record, 56, count);
    return record + *parameters;
}

std::optional<FilterInstance> decodeFilter(ByteReader &reader, bool honourSelectionFlag, Error &error)
{
    const QString truncated = FileMessage::tr("A filter record is truncated or invalid.");
    const std::optional<QByteArrayView> header = reader.take(kHeaderSize);
    if (!header || u32At(*header, 0) != kRecordVersion)
        return error.fail(truncated);
    const std::optional<QByteArrayView> block = reader.take(u32At(*header, 60));
    if (!block)
        return error.fail(truncated);

    const std::optional<QUuid> id = uuidAt(*header, 4, error);
    const std::optional<QString> filterId = keyAt(*header, 24, error);
    if (!id || !filterId)
        return std::nullopt;
    ByteReader parameters(*block);
    std::optional<ParameterValues> values = decodeParameters(parameters, u32At(*header, 56), error);
    if (!values)
        return std::nullopt;
    if (!parameters.atEnd())
        return error.fail(FileMessage::tr("A filter parameter block has trailing data."));

    if (*filterId == "fade-image"_L1)
        migrateFadeTarget(*values);
    const quint32 flags = u32At(*header, 20);
    return FilterInstance{.instanceId = *id,
                          .filterId = *filterId,
                          .parameters = definedValues(*filterId, *values),
                          .enabled = (flags & kEnabledFlag) != 0,
                          .rasterSelectionScoped = honourSelectionFlag && (flags & kSelectionFlag) != 0};
}

} // namespace zm
