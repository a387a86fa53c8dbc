#include "values/parameter_definition.h"

#include <algorithm>
#include <cmath>
#include <concepts>
#include <tuple>
#include <utility>

namespace zm {

namespace {

std::optional<ParameterValue> acceptedOption(const QList<ParameterOption> &options, const ParameterValue &value)
{
    const std::optional<QString> text = optionText(value);
    const auto option =
        std::ranges::find(options, text, [](const ParameterOption &row) { return optionText(row.value); });
    return text && option != options.end() ? std::optional(option->value) : std::nullopt;
}

std::optional<ParameterValue> sameKind(const ParameterValue &own, const ParameterValue &value)
{
    return own.index() == value.index() && isStorable(value) ? std::optional(value) : std::nullopt;
}

// A double at or beyond the ends of the integer type must not be cast.
qint64 roundedInteger(double value, const NumericParameter<qint64> &limits)
{
    if (!(value > double(limits.minimum))) // also for NaN
        return limits.minimum;
    return value < double(limits.maximum) ? qint64(std::round(value)) : limits.maximum;
}

struct Acceptance
{
    const ParameterValue &value;

    std::optional<ParameterValue> operator()(const NumericParameter<double> &control) const
    {
        const qint64 *integer = std::get_if<qint64>(&value);
        const double *real = std::get_if<double>(&value);
        if (!integer && !real)
            return std::nullopt;
        return snapped(integer ? double(*integer) : *real, control.minimum, control.maximum, control.step);
    }
    std::optional<ParameterValue> operator()(const NumericParameter<qint64> &control) const
    {
        const qint64 *integer = std::get_if<qint64>(&value);
        const double *real = std::get_if<double>(&value);
        if (!integer && !real)
            return std::nullopt;
        return snapped(integer ? *integer : roundedInteger(*real, control), control.minimum, control.maximum,
                       control.step);
    }
    std::optional<ParameterValue> operator()(const ChoiceParameter &control) const
    {
        return acceptedOption(control.options, value);
    }
    std::optional<ParameterValue> operator()(const TexturePickerParameter &control) const
    {
        return acceptedOption(control.options, value);
    }
    std::optional<ParameterValue> operator()(const StrokeParameter &control) const
    {
        const Stroke *stroke = std::get_if<Stroke>(&value);
        if (!stroke || !stroke->color.isValid())
            return std::nullopt;
        return Stroke{stroke->color, snapped(stroke->width, control.minimum, control.maximum, control.step)};
    }
    std::optional<ParameterValue> operator()(const ShapeParameter &) const
    {
        if (const QString *generatorId = std::get_if<QString>(&value))
            return ShapeMask{*generatorId};
        return sameKind(ShapeMask(), value);
    }
    std::optional<ParameterValue> operator()(const LightSourcesParameter &control) const
    {
        const LightSources *lights = std::get_if<LightSources>(&value);
        return lights && lights->size() <= control.maximumCount ? sameKind(control.defaultValue, value) : std::nullopt;
    }
    std::optional<ParameterValue> operator()(const ParameterHead &) const { return std::nullopt; }

    template<typename Control>
    std::optional<ParameterValue> operator()(const Control &control) const
        requires requires { control.defaultValue; } && (!std::derived_from<Control, NumericParameter<double>>)
        && (!std::derived_from<Control, NumericParameter<qint64>>)
    {
        return sameKind(control.defaultValue, value);
    }
};

/// Whether a control's readers make something of a value.
struct Readability
{
    const ParameterValue &value;

    bool isNumber() const { return std::holds_alternative<double>(value) || std::holds_alternative<qint64>(value); }

    bool operator()(const NumericParameter<double> &) const { return isNumber(); }
    bool operator()(const NumericParameter<qint64> &) const { return isNumber(); }
    bool operator()(const ChoiceParameter &) const { return optionText(value).has_value(); }
    bool operator()(const TexturePickerParameter &) const { return optionText(value).has_value(); }
    bool operator()(const ShapeParameter &) const
    {
        return std::holds_alternative<ShapeMask>(value) || std::holds_alternative<QString>(value);
    }
    bool operator()(const ParameterHead &) const { return true; }

    template<typename Control>
    bool operator()(const Control &control) const
        requires requires { control.defaultValue; } && (!std::derived_from<Control, NumericParameter<double>>)
        && (!std::derived_from<Control, NumericParameter<qint64>>)
    {
        return value.index() == ParameterValue(control.defaultValue).index();
    }
};

} // namespace

const ParameterHead &parameterHead(const ParameterDefinition &definition)
{
    return std::visit([](const ParameterHead &head) -> const ParameterHead & { return head; }, definition);
}

std::optional<ParameterValue> defaultValue(const ParameterDefinition &definition)
{
    return std::visit(
        [](const auto &control) -> std::optional<ParameterValue> {
            if constexpr (requires { control.defaultValue; })
                return ParameterValue(control.defaultValue);
            else
                return std::nullopt;
        },
        definition);
}

double snapped(double value, double minimum, double maximum, double step)
{
    if (minimum > maximum)
        std::swap(minimum, maximum);
    if (!std::isfinite(value))
        return minimum;
    const double limited = std::clamp(value, minimum, maximum);
    if (!std::isfinite(step) || step <= 0.0)
        return limited;
    return std::clamp(std::round((limited - minimum) / step) * step + minimum, minimum, maximum);
}

qint64 snapped(qint64 value, qint64 minimum, qint64 maximum, qint64 step)
{
    if (minimum > maximum)
        std::swap(minimum, maximum);
    // Unsigned arithmetic: the distance of two limits may exceed a signed number.
    const quint64 stride = quint64(std::max<qint64>(step, 1));
    const quint64 distance = quint64(std::clamp(value, minimum, maximum)) - quint64(minimum);
    const quint64 remainder = distance % stride;
    const quint64 below = distance - remainder;
    const quint64 span = quint64(maximum) - quint64(minimum);
    const bool roundsUp = remainder >= stride - remainder && remainder != 0;
    const quint64 offset = !roundsUp ? below : span - below < stride ? span : below + stride;
    return qint64(quint64(minimum) + offset);
}

std::optional<ParameterValue> acceptedValue(const ParameterDefinition &definition, const ParameterValue &value)
{
    return std::visit(Acceptance{value}, definition);
}

void setNumbers(NumericParameter<double> &parameter, double defaultValue, double minimum, double maximum, double step)
{
    std::tie(parameter.minimum, parameter.maximum) = std::minmax({minimum, maximum});
    parameter.step = step;
    parameter.defaultValue = snapped(defaultValue, parameter.minimum, parameter.maximum, step);
}

std::optional<QString> optionText(const ParameterValue &value)
{
    if (const qint64 *integer = std::get_if<qint64>(&value))
        return QString::number(*integer);
    if (const double *number = std::get_if<double>(&value))
        return QString::number(*number, 'g', 17);
    const QString *text = std::get_if<QString>(&value);
    return text ? std::optional(*text) : std::nullopt;
}

ParameterDefinition realParameter(const QString &id, const QString &label, double defaultValue, double minimum,
                                  double maximum, double step, ParameterFlags flags, ParameterUnit unit)
{
    auto parameter = headed<RealRangeParameter>(id, label);
    parameter.flags = flags;
    parameter.unit = unit;
    setNumbers(parameter, defaultValue, minimum, maximum, step);
    return parameter;
}

ParameterDefinition integerParameter(const QString &id, const QString &label, qint64 defaultValue, qint64 minimum,
                                     qint64 maximum)
{
    auto parameter = headed<IntegerRangeParameter>(id, label);
    std::tie(parameter.minimum, parameter.maximum) = std::minmax({minimum, maximum});
    parameter.defaultValue = snapped(defaultValue, parameter.minimum, parameter.maximum, parameter.step);
    return parameter;
}

void applyPreset(ParameterValues &values, const ColorPresetParameter &control, const ColorPreset &preset)
{
    for (const QString &key : control.resetKeys)
        values.remove(key);
    for (qsizetype i = 0; i < preset.colors.size(); ++i)
        values.set(control.target + QString::number(i), preset.colors[i]);
    for (const auto &[key, value] : preset.parameters.entries().asKeyValueRange())
        values.set(key, value);
}

const ParameterDefinition *findParameter(const QList<ParameterDefinition> &definitions, const QString &id)
{
    const auto found = std::ranges::find_if(
        definitions, [&id](const ParameterDefinition &definition) { return parameterHead(definition).id == id; });
    return found == definitions.end() ? nullptr : &*found;
}

ParameterValues completeParameters(const QList<ParameterDefinition> &definitions, const ParameterValues &values)
{
    ParameterValues result = values;
    for (const ParameterDefinition &definition : definitions) {
        const QString &key = parameterHead(definition).id;
        const std::optional<ParameterValue> value = defaultValue(definition);
        if (value && !result.contains(key))
            result.set(key, *value);
    }
    return result;
}

ParameterValues readableParameters(const QList<ParameterDefinition> &definitions, const ParameterValues &values)
{
    ParameterValues result = completeParameters(definitions, values);
    for (const ParameterDefinition &definition : definitions) {
        const QString &key = parameterHead(definition).id;
        const std::optional<ParameterValue> fallback = defaultValue(definition);
        const auto stored = result.entries().constFind(key);
        if (fallback && stored != result.entries().cend() && !std::visit(Readability{*stored}, definition))
            result.set(key, *fallback);
    }
    return result;
}

} // namespace zm
