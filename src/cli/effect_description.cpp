#include "cli/effect_description.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace zm::cli {

namespace {

QString colorText(const QColor &color)
{
    return color.alpha() == 255 ? color.name() : color.name() + u"%1"_s.arg(color.alpha(), 2, 16, '0'_L1);
}

/// A value as `--set` takes it; numbers and booleans as such.
struct JsonWriter
{
    QJsonValue operator()(bool value) const { return value; }
    QJsonValue operator()(qint64 value) const { return value; }
    QJsonValue operator()(double value) const { return value; }
    QJsonValue operator()(const QColor &value) const { return colorText(value); }
    QJsonValue operator()(const QString &value) const { return value; }
    QJsonValue operator()(const AssetName &value) const { return value.fileName; }
    QJsonValue operator()(const EnabledColor &value) const
    {
        return value.enabled ? colorText(value.color) : u"none"_s;
    }
    QJsonValue operator()(const Stroke &value) const { return u"%1@%2"_s.arg(colorText(value.color)).arg(value.width); }
    QJsonValue operator()(const GradientPosition &value) const
    {
        return u"%1,%2,%3,%4"_s.arg(value.x1).arg(value.y1).arg(value.x2).arg(value.y2);
    }
    QJsonValue operator()(const MaskTransform &value) const
    {
        return u"%1,%2,%3,%4,%5"_s.arg(value.x).arg(value.y).arg(value.scaleX).arg(value.scaleY).arg(value.rotation);
    }
    QJsonValue operator()(const ShapeMask &value) const { return value.generatorId; }
    QJsonValue operator()(const LightSources &value) const
    {
        QJsonArray lights;
        for (const LightSource &light : value) {
            lights.append(QJsonObject{{u"x"_s, light.x},
                                      {u"y"_s, light.y},
                                      {u"radius"_s, light.radius},
                                      {u"angle"_s, light.angle},
                                      {u"intensity"_s, light.intensity},
                                      {u"softness"_s, light.softness},
                                      {u"shape"_s, lightShapeName(light.shape)},
                                      {u"tint"_s, colorText(light.tint)}});
        }
        return lights;
    }
};

QJsonValue jsonValue(const ParameterValue &value)
{
    return std::visit(JsonWriter(), value);
}

/// What is particular to a kind of control: its type and its limits or options.
struct ControlFacts
{
    QJsonObject &object;

    void operator()(const NumericParameter<double> &control, const QString &type) const
    {
        object[u"type"_s] = type;
        object[u"minimum"_s] = control.minimum;
        object[u"maximum"_s] = control.maximum;
        object[u"step"_s] = control.step;
    }
    void operator()(const NumericParameter<qint64> &control, const QString &type) const
    {
        object[u"type"_s] = type;
        object[u"minimum"_s] = control.minimum;
        object[u"maximum"_s] = control.maximum;
        object[u"step"_s] = control.step;
    }
    void operator()(const RealRangeParameter &control) const { (*this)(control, u"range"_s); }
    void operator()(const IntegerRangeParameter &control) const { (*this)(control, u"range"_s); }
    void operator()(const RealNumberParameter &control) const { (*this)(control, u"number"_s); }
    void operator()(const IntegerNumberParameter &control) const { (*this)(control, u"number"_s); }
    void operator()(const BooleanParameter &) const { object[u"type"_s] = u"boolean"_s; }
    void operator()(const ColorParameter &) const { object[u"type"_s] = u"color"_s; }
    void operator()(const ChoiceParameter &control) const { options(control.options, u"choice"_s); }
    void operator()(const TexturePickerParameter &control) const { options(control.options, u"texturePicker"_s); }
    void operator()(const ColorPresetParameter &control) const
    {
        object[u"type"_s] = u"colorPreset"_s;
        QJsonArray labels;
        for (const ColorPreset &preset : control.presets)
            labels.append(preset.label);
        object[u"options"_s] = labels;
    }
    void operator()(const EnabledColorParameter &) const { object[u"type"_s] = u"enabledColor"_s; }
    void operator()(const StrokeParameter &control) const
    {
        object[u"type"_s] = u"stroke"_s;
        object[u"minimum"_s] = control.minimum;
        object[u"maximum"_s] = control.maximum;
        object[u"step"_s] = control.step;
    }
    void operator()(const GradientPositionParameter &) const { object[u"type"_s] = u"gradientPosition"_s; }
    void operator()(const MaskTransformParameter &) const { object[u"type"_s] = u"maskTransform"_s; }
    void operator()(const ShapeParameter &) const { object[u"type"_s] = u"shape"_s; }
    void operator()(const FilterActionParameter &) const { object[u"type"_s] = u"filterAction"_s; }
    void operator()(const DocumentColorParameter &) const { object[u"type"_s] = u"documentColor"_s; }
    void operator()(const LightSourcesParameter &control) const
    {
        object[u"type"_s] = u"lightSources"_s;
        object[u"maximum"_s] = control.maximumCount;
    }
    void operator()(const AssetParameter &) const { object[u"type"_s] = u"asset"_s; }

private:
    void options(const QList<ParameterOption> &rows, const QString &type) const
    {
        object[u"type"_s] = type;
        QJsonArray values;
        for (const ParameterOption &row : rows)
            values.append(QJsonObject{{u"value"_s, jsonValue(row.value)}, {u"label"_s, row.label}});
        object[u"options"_s] = values;
    }
};

QJsonObject controlObject(const ParameterDefinition &definition)
{
    const ParameterHead &head = parameterHead(definition);
    QJsonObject object{{u"key"_s, head.id}, {u"label"_s, head.label}};
    std::visit(ControlFacts{object}, definition);
    if (const std::optional<ParameterValue> value = defaultValue(definition))
        object[u"default"_s] = jsonValue(*value);
    if (head.unit != ParameterUnit::None)
        object[u"unit"_s] = head.unit == ParameterUnit::Pixels ? u"px"_s : u"deg"_s;
    if (head.flags.testFlag(ParameterFlag::Percent))
        object[u"percent"_s] = true;
    if (head.flags.testFlag(ParameterFlag::Hidden))
        object[u"hidden"_s] = true;
    return object;
}

} // namespace

QJsonObject effectDescription(const Filter &filter, const QString &group)
{
    constexpr std::pair<FilterFlag, QLatin1StringView> flagNames[] = {
        {FilterFlag::ExtendsBeyondBounds, "extendsBeyondBounds"_L1},
        {FilterFlag::PrefersTransparentExport, "prefersTransparentExport"_L1},
        {FilterFlag::KeepInspectorOpen, "keepInspectorOpen"_L1},
        {FilterFlag::SupportsRasterSelection, "supportsRasterSelection"_L1},
        {FilterFlag::Experimental, "experimental"_L1},
    };
    constexpr const char *categories[] = {"", "Basic", "Color", "Edge", "Frame", "Montages"};
    QJsonArray flags;
    for (const auto &[flag, name] : flagNames) {
        if (filter.flags().testFlag(flag))
            flags.append(name);
    }
    QJsonArray controls;
    const QList<ParameterDefinition> definitions = filter.controls();
    for (const ParameterDefinition &definition : definitions)
        controls.append(controlObject(definition));
    return {{u"id"_s, filter.id()},
            {u"label"_s, filter.label()},
            {u"category"_s, QLatin1StringView(categories[int(filter.category())])},
            {u"group"_s, group},
            {u"flags"_s, flags},
            {u"keywords"_s, QJsonArray::fromStringList(filter.pickerKeywords())},
            {u"controls"_s, controls}};
}

} // namespace zm::cli
