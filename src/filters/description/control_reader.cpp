#include "filters/description/control_reader.h"

#include "filters/description/filter_pictures.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kDegreesPerRadian = 180.0 / std::numbers::pi;

ParameterUnit unitFrom(const QString &text)
{
    const QString unit = text.toLower();
    if (unit == "px"_L1)
        return ParameterUnit::Pixels;
    return unit == "deg"_L1 || unit == "degrees"_L1 ? ParameterUnit::Degrees : ParameterUnit::None;
}

ParameterValue valueFrom(const QJsonValue &value)
{
    if (!value.isDouble())
        return value.toString();
    const double number = value.toDouble();
    return number == std::floor(number) ? ParameterValue(value.toInteger()) : ParameterValue(number);
}

/// Reads the entry of one control. Its operators fill what is particular to a kind.
class ControlReader
{
public:
    ControlReader(const QJsonObject &object, const ControlTranslator &translator)
        : m_object(object)
        , m_translator(translator)
    {
    }

    template<typename Control>
    ParameterDefinition read() const
    {
        Control control;
        control.id = m_object["key"_L1].toString();
        control.label = m_translator.translated(m_object["label"_L1].toString());
        control.flags.setFlag(ParameterFlag::Hidden, m_object["hidden"_L1].toBool());
        control.flags.setFlag(ParameterFlag::Percent, m_object["percent"_L1].toBool());
        control.unit = unitFrom(m_object["unit"_L1].toString());
        fill(control);
        return control;
    }

private:
    QJsonValue given() const { return m_object["default"_L1]; }
    QString buttonLabel() const { return m_translator.translated(m_object["buttonLabel"_L1].toString()); }

    void fill(NumericParameter<double> &control) const
    {
        setNumbers(control, given().toDouble(), m_object["min"_L1].toDouble(-1000000.0),
                   m_object["max"_L1].toDouble(1000000.0), m_object["step"_L1].toDouble(1.0));
    }
    void fill(BooleanParameter &control) const { control.defaultValue = given().toBool(); }
    void fill(ColorParameter &control) const { control.defaultValue = colorFromJson(given(), control.defaultValue); }
    void fill(ChoiceParameter &control) const
    {
        control.options = options(false);
        control.defaultValue = defaultOption(control.options);
        control.sortOptions = m_object["sortOptions"_L1].toBool();
    }
    void fill(TexturePickerParameter &control) const
    {
        control.options = options(true);
        control.defaultValue = defaultOption(control.options);
    }
    void fill(ColorPresetParameter &control) const
    {
        control.target = m_object["target"_L1].toString(u"framecolor"_s);
        const QJsonArray keys = m_object["resetKeys"_L1].toArray();
        for (const QJsonValue &key : keys)
            control.resetKeys.append(key.toString());
        const QJsonArray presets = m_object["options"_L1].toArray();
        for (const QJsonValue &preset : presets)
            control.presets.append(presetFrom(preset.toObject()));
    }
    void fill(EnabledColorParameter &control) const
    {
        control.defaultValue = {given()["enabled"_L1].toBool(), colorFromJson(given()["color"_L1], Qt::transparent)};
    }
    void fill(StrokeParameter &control) const
    {
        std::tie(control.minimum, control.maximum) =
            std::minmax({m_object["min"_L1].toDouble(0.0), m_object["max"_L1].toDouble(100.0)});
        control.step = m_object["step"_L1].toDouble(1.0);
        const double width = given()["enabled"_L1].toBool(true) ? given()["width"_L1].toDouble() : 0.0;
        control.defaultValue = {colorFromJson(given()["color"_L1], Qt::black),
                                snapped(width, control.minimum, control.maximum, control.step)};
    }
    void fill(GradientPositionParameter &control) const
    {
        const GradientPosition fallback;
        control.defaultValue = {given()["x1"_L1].toDouble(fallback.x1), given()["y1"_L1].toDouble(fallback.y1),
                                given()["x2"_L1].toDouble(fallback.x2), given()["y2"_L1].toDouble(fallback.y2)};
        control.overlayMode = m_object["overlayMode"_L1].toString();
        control.buttonLabel = buttonLabel();
    }
    void fill(MaskTransformParameter &control) const
    {
        const double scale = given()["scale"_L1].toDouble(1.0);
        MaskTransform &mask = control.defaultValue;
        mask.x = given()["x"_L1].toDouble(mask.x);
        mask.y = given()["y"_L1].toDouble(mask.y);
        mask.scaleX = given()["scaleX"_L1].toDouble(scale);
        mask.scaleY = given()["scaleY"_L1].toDouble(scale);
        mask.rotation = given()["rotation"_L1].toDouble() * kDegreesPerRadian;
        mask.pivotX = given()["pivotX"_L1].toDouble(mask.pivotX);
        mask.pivotY = given()["pivotY"_L1].toDouble(mask.pivotY);
        mask.mode =
            given()["mode"_L1].toString() == "uniform"_L1 ? MaskTransform::Mode::Uniform : MaskTransform::Mode::Free;
        control.buttonLabel = buttonLabel();
        control.hideRotation = m_object["hideRotation"_L1].toBool();
        control.uniformScaleOnly = m_object["uniformScaleOnly"_L1].toBool();
    }
    void fill(ShapeParameter &control) const { control.defaultValue = {given().toString()}; }
    void fill(FilterActionParameter &control) const { control.buttonLabel = buttonLabel(); }
    void fill(DocumentColorParameter &control) const
    {
        control.defaultValue = colorFromJson(given(), control.defaultValue);
    }
    void fill(LightSourcesParameter &control) const
    {
        control.maximumCount =
            std::clamp<qsizetype>(m_object["maxCount"_L1].toInteger(kMaximumLightSources), 0, kMaximumLightSources);
        control.buttonLabel = buttonLabel();
        const QJsonArray lights = given().toArray();
        for (const QJsonValue &light : lights)
            control.defaultValue.append(lightFrom(light.toObject()));
    }

    /// An option is an object with a value and a label, or the bare value.
    QList<ParameterOption> options(bool withPictures) const
    {
        QList<ParameterOption> result;
        const QJsonArray rows = m_object["options"_L1].toArray();
        for (const QJsonValue &row : rows) {
            const QJsonValue value = row.isObject() ? row["value"_L1] : row;
            const QString text = value.toVariant().toString();
            ParameterOption option{valueFrom(value), m_translator.translated(row["label"_L1].toString(text)), {}};
            if (withPictures)
                option.previewSource = texturePreviewSource(text);
            result.append(option);
        }
        return result;
    }

    /// The option that the default names; the first where it names none.
    ParameterValue defaultOption(const QList<ParameterOption> &options) const
    {
        if (options.isEmpty())
            return QString();
        ChoiceParameter choice;
        choice.options = options;
        return acceptedValue(choice, valueFrom(given())).value_or(options.first().value);
    }

    ColorPreset presetFrom(const QJsonObject &object) const
    {
        ColorPreset preset;
        preset.label = m_translator.translated(object["label"_L1].toString());
        const QJsonArray colors = object["colors"_L1].toArray();
        for (const QJsonValue &color : colors)
            preset.colors.append(colorFromJson(color, Qt::black));
        const QJsonObject parameters = object["params"_L1].toObject();
        for (auto it = parameters.begin(); it != parameters.end(); ++it) {
            if (it->isDouble())
                preset.parameters.set(it.key(), it->toDouble());
            else
                preset.parameters.set(it.key(), it->isBool() ? ParameterValue(it->toBool()) : it->toString());
        }
        return preset;
    }

    static LightSource lightFrom(const QJsonObject &object)
    {
        LightSource light;
        light.x = object["x"_L1].toDouble(light.x);
        light.y = object["y"_L1].toDouble(light.y);
        light.radius = object["radius"_L1].toDouble(light.radius);
        light.angle = object["angle"_L1].toDouble(light.angle);
        light.intensity = object["intensity"_L1].toDouble(light.intensity);
        light.softness = object["softness"_L1].toDouble(light.softness);
        light.shape = lightShapeFromName(object["shape"_L1].toString()).value_or(light.shape);
        light.tint = colorFromJson(object["tint"_L1], light.tint);
        return light;
    }

    const QJsonObject m_object;
    const ControlTranslator &m_translator;
};

struct ControlType
{
    QLatin1StringView name;
    ParameterDefinition (ControlReader::*read)() const;
};

constexpr ControlType kControlTypes[] = {
    {"range"_L1, &ControlReader::read<RealRangeParameter>},
    {"number"_L1, &ControlReader::read<RealNumberParameter>},
    {"checkbox"_L1, &ControlReader::read<BooleanParameter>},
    {"color"_L1, &ControlReader::read<ColorParameter>},
    {"select"_L1, &ControlReader::read<ChoiceParameter>},
    {"texture-picker"_L1, &ControlReader::read<TexturePickerParameter>},
    {"color-preset-picker"_L1, &ControlReader::read<ColorPresetParameter>},
    {"enabled-color"_L1, &ControlReader::read<EnabledColorParameter>},
    {"stroke"_L1, &ControlReader::read<StrokeParameter>},
    {"gradient-position"_L1, &ControlReader::read<GradientPositionParameter>},
    {"mask-transform"_L1, &ControlReader::read<MaskTransformParameter>},
    {"shapeMask"_L1, &ControlReader::read<ShapeParameter>},
    {"filter-action"_L1, &ControlReader::read<FilterActionParameter>},
    {"document-color"_L1, &ControlReader::read<DocumentColorParameter>},
    {"light-sources"_L1, &ControlReader::read<LightSourcesParameter>},
};

} // namespace

QString ControlTranslator::translated(const QString &text) const
{
    return text.isEmpty() ? text : QCoreApplication::translate(m_context.constData(), text.toUtf8().constData());
}

QColor colorFromJson(const QJsonValue &value, const QColor &fallback)
{
    const QColor color = QColor::fromString(value.toString());
    return color.isValid() ? color : fallback;
}

std::optional<ParameterDefinition> controlFromJson(const QJsonValue &value, const ControlTranslator &translator)
{
    const QJsonObject object = value.toObject();
    if (object["key"_L1].toString().isEmpty())
        return std::nullopt;
    const QString type = object["type"_L1].toString();
    const auto found = std::ranges::find(kControlTypes, type, &ControlType::name);
    if (found == std::end(kControlTypes))
        return std::nullopt;
    return (ControlReader(object, translator).*found->read)();
}

} // namespace zm
